program naves;
global
    puntos = 0;
end

begin
    nave(160, 180);
    loop
        frame;
    end
end

process nave(x, y)
begin
    loop
        if (key(_space)) disparo(x, y - 8); end
        frame;
    end
end

Process disparo(x, y)
begin
    while (y > 0)
        y -= 6;
        frame;
    end
end

PROCESS enemigo(x, y, int vida)
private
    angulo_ = 0;
begin
    loop frame; end
end
