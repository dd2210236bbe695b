x=a]
