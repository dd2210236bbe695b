// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceText.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <random>
#include <string_view>

namespace Quillbox::Bench {

namespace {

constexpr std::string_view Lines[] = {
    "Graphics3D 800,600,32,2",
    "SetBuffer BackBuffer()",
    "Global camara=CreateCamera()",
    "PositionEntity camara,0,#.5,-#",
    "Local enemigo.TEnemigo=New TEnemigo",
    "enemigo\\vida=#",
    "enemigo\\velocidad#=#.25",
    "If KeyDown(#)=True Then",
    "\tTurnEntity jugador,0,-2.5,0",
    "\tMoveEntity jugador#,0,0,velocidad*#",
    "EndIf",
    "For i=# To #",
    "\ttotal=total+tabla(i)*$FF",
    "\tCollisions #,#,2,1",
    "Next",
    "While Not KeyHit(1)",
    "\tUpdateWorld",
    "\tRenderWorld",
    "\tText #,10,\"Puntuaci\xF3n: \"+puntos",
    "\tFlip",
    "Wend",
    "// mueve los enemigos hacia el jugador",
    "Function MoverEnemigos#()",
    "\tFor e.TEnemigo=Each TEnemigo",
    "\t\tdistancia=EntityDistance(e\\malla,jugador)",
    "\t\tIf distancia<#.5 Then Delete e",
    "\tNext",
    "End Function",
    "/* textos del men\xFA principal */",
    "sonido=LoadSound(\"sonidos\\disparo#.wav\")",
    "malla=LoadMesh(\"media\\nave#.x\")",
    "EntityTexture malla,textura,0,#",
    "a\xF1o=# : Print a\xF1o",
    "",
};

/// A line with each "#" replaced by a number.
void AppendLine(std::string &text, std::mt19937 &random) {
    for (const char character : Lines[random() % std::size(Lines)]) {
        if (character == '#')
            text += std::to_string(random() % 1000);
        else
            text += character;
    }
}

std::string Text(std::size_t size, std::string_view separator) {
    std::mt19937 random(1);
    std::string text;
    text.reserve(size + 256);
    while (text.size() < size) {
        AppendLine(text, random);
        text += separator;
    }
    return text;
}

} // namespace

std::string SourceText(std::size_t size) { return Text(size, "\r\n"); }

std::string SourceLine(std::size_t size) {
    // A comment would colour the rest of the line in one; such lines are the easy ones.
    std::string line = Text(size, " : ");
    for (std::size_t place = line.find("//"); place != std::string::npos; place = line.find("//"))
        line.replace(place, 2, "  ");
    return line;
}

LanguageDefinition SourceLanguage() {
    LanguageDefinition language;
    language.SingleLineComment = "//";
    language.MultiLineCommentStart = "/*";
    language.MultiLineCommentEnd = "*/";
    language.StringDelimiter = "\"";
    language.Operators = "+\n-\n*\n/\n=\n<\n>\n(\n)\n[\n]\n,\n;\n:\n\\\n&\n|\n^\n~\n";
    QFile file(QUILLBOX_KEYWORDS_FILE);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    const QString words = QString::fromLatin1(file.readAll()).toUpper();
    language.Keywords = u'\n' + QString(words).remove(u'\r');
    language.UserWords = "\nMoverEnemigos";
    return language;
}

QString WriteFile(const QString &name, const std::string &bytes) {
    static const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    const auto size = static_cast<qint64>(bytes.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), size) != size)
        std::abort();
    return file.fileName();
}

} // namespace Quillbox::Bench
