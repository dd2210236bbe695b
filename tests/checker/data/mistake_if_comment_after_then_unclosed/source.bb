If a Then ; x
