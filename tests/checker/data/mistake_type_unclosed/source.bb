Type t
Field x
