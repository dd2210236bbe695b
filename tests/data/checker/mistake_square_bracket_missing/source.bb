x=a[3
