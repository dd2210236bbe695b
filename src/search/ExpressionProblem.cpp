// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ExpressionProblem.h"

namespace Quillbox {
namespace {

struct Translation {
    const char *Beginning; ///< of the engine's message
    const char *Spanish;   ///< UTF-8
};

constexpr Translation Translations[] = {
    {"missing closing parenthesis for condition", "falta cerrar el paréntesis de una condición"},
    {"missing closing parenthesis", "falta un paréntesis de cierre"},
    {"unmatched closing parenthesis", "sobra un paréntesis de cierre"},
    {"missing terminating ]", "falta el corchete de cierre «]»"},
    {"quantifier does not follow", "un cuantificador (*, +, ? o {}) no tiene nada que repetir"},
    {"numbers out of order in {}", "los números de {} están al revés"},
    {"number too big in {}", "un número de {} es demasiado grande"},
    {"\\ at end of pattern", "no hay nada detrás de la última «\\»"},
    {"\\c at end of pattern", "no hay nada detrás de «\\c»"},
    {"range out of order in character class", "un intervalo entre corchetes está al revés"},
    {"invalid range in character class", "un intervalo entre corchetes no es válido"},
    {"unrecognized character follows \\", "detrás de «\\» hay un carácter sin significado"},
    {"invalid escape sequence in character class",
     "entre corchetes hay una «\\» con un carácter que ahí no vale"},
    {"escape sequence is invalid in character class",
     "entre corchetes hay una «\\» con un carácter que ahí no vale"},
    {"unrecognized character after (?P", "detrás de «(?P» hay un carácter sin significado"},
    {"unrecognized character after (?", "detrás de «(?» hay un carácter sin significado"},
    {"missing ) after (?#", "falta cerrar el comentario «(?#»"},
    {"reference to non-existent subpattern", "se nombra un grupo que no existe"},
    {"lookbehind assertion is not fixed length",
     "lo que se comprueba hacia atrás no tiene una longitud fija"},
    {"lookbehind is too complicated", "lo que se comprueba hacia atrás es demasiado complicado"},
    {"two named subpatterns have the same name", "dos grupos tienen el mismo nombre"},
    {"subpattern name must start with", "el nombre de un grupo no puede empezar por una cifra"},
    {"subpattern name is too long", "el nombre de un grupo es demasiado largo"},
    {"subpattern name expected", "falta el nombre de un grupo"},
    {"syntax error in subpattern name", "el nombre de un grupo no está bien escrito"},
    {"subpattern number is too big", "el número de un grupo es demasiado grande"},
    {"\\K is not allowed in lookarounds",
     "«\\K» no vale dentro de lo que se comprueba hacia delante o hacia atrás"},
    {"\\k is not followed", "detrás de «\\k» falta el nombre de un grupo"},
    {"\\g is not followed", "detrás de «\\g» falta el nombre o el número de un grupo"},
    {"digit expected after (?+", "detrás de «(?+» o «(?-» falta una cifra"},
    {"(?R (recursive pattern call)", "falta cerrar el paréntesis de «(?R»"},
    {"number after (?C", "el número de «(?C» es demasiado grande"},
    {"assertion expected after (?(", "falta la condición detrás de «(?(»"},
    {"conditional subpattern contains more", "una condición tiene más de dos alternativas"},
    {"DEFINE subpattern contains more", "«(?(DEFINE)» tiene más de una alternativa"},
    {"unknown POSIX class name", "no existe la clase de caracteres que se nombra con «[: :]»"},
    {"POSIX named classes are supported only", "«[: :]» solo vale dentro de otros corchetes"},
    {"POSIX collating elements", "«[. .]» y «[= =]» no se admiten"},
    {"unknown property", "no existe la propiedad que se nombra con «\\p»"},
    {"malformed \\P or \\p", "detrás de «\\p» falta el nombre de una propiedad"},
    {"character code point value", "el código de un carácter es demasiado grande"},
    {"non-hex character in \\x{}", "en «\\x{}» hay algo que no es una cifra hexadecimal"},
    {"non-octal character in \\o{}", "en «\\o{}» hay algo que no es una cifra octal"},
    {"missing opening brace after \\o", "falta la llave detrás de «\\o»"},
    {"PCRE2 does not support", "\\F, \\L, \\l, \\N{}, \\U y \\u no se admiten"},
    {"(*VERB) not recognized", "no existe la orden que se da con «(*»"},
    {"regular expression is too large", "la expresión es demasiado larga"},
    {"parentheses are too deeply nested", "hay demasiados paréntesis unos dentro de otros"},
};

const char *SpanishOf(const QString &message) {
    for (const Translation &translation : Translations)
        if (message.startsWith(QLatin1String(translation.Beginning)))
            return translation.Spanish;
    return "no se entiende";
}

} // namespace

QString ExpressionProblem(const QString &message, qsizetype offset) {
    return QStringLiteral("Expresión no válida: %1 (posición %2).")
        .arg(QString::fromUtf8(SpanishOf(message)))
        .arg(offset + 1);
}

} // namespace Quillbox
