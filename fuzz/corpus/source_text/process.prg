process ovni(int x, y)
begin
  loop frame; end
end
