// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ExpressionProblem.h"
#include "fakes/SourceTree.h"
#include "search/TextSearch.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

/// What the search says of a bad expression; empty for a good one.
QString ProblemOf(const QString &term) {
    const MadeSearch made = MakeSearch({.Term = term, .IsExpression = true}, std::chrono::hours(1));
    const auto *bad = std::get_if<BadExpression>(&made);
    return bad == nullptr ? QString() : bad->Reason;
}

/// The engine's messages in the Spanish of the program's own texts.
class BadExpressions : public testing::Test {
  protected:
    BadExpressions() {
        EXPECT_TRUE(Spanish_.load(
            QString::fromStdString((BuiltProgram() / "translations" / "quillbox_es.qm").string())));
        QCoreApplication::installTranslator(&Spanish_);
    }

    /// What the search says of the same expression without those texts.
    QString EnglishProblemOf(const QString &term) {
        QCoreApplication::removeTranslator(&Spanish_);
        const QString problem = ProblemOf(term);
        QCoreApplication::installTranslator(&Spanish_);
        return problem;
    }

    void ExpectReason(const QString &term, const QString &reason) {
        const QString problem = ProblemOf(term);
        EXPECT_TRUE(problem.startsWith(QStringLiteral("Expresión no válida: ") + reason +
                                       QStringLiteral(" (posición ")))
            << term.left(100).toStdString() << ": " << problem.toStdString();
        EXPECT_NE(problem, EnglishProblemOf(term)) << term.left(100).toStdString();
    }

  private:
    QTranslator Spanish_;
};

struct Mistake {
    const char *Term;
    const char *Reason;
};

constexpr Mistake Mistakes[] = {
    {R"(()", R"(falta un paréntesis de cierre)"},
    {R"(a))", R"(sobra un paréntesis de cierre)"},
    {R"([a)", R"(falta el corchete de cierre «]»)"},
    {R"(*a)", R"(un cuantificador (*, +, ? o {}) no tiene nada que repetir)"},
    {R"(a**)", R"(un cuantificador (*, +, ? o {}) no tiene nada que repetir)"},
    {R"(a{3,1})", R"(los números de {} están al revés)"},
    {R"(a{99999})", R"(un número de {} es demasiado grande)"},
    {R"(\)", R"(no hay nada detrás de la última «\»)"},
    {R"(\i)", R"(detrás de «\» hay un carácter sin significado)"},
    {R"([b-a])", R"(un intervalo entre corchetes está al revés)"},
    {R"([\d-z])", R"(un intervalo entre corchetes no es válido)"},
    {R"([\B])", R"(entre corchetes hay una «\» con un carácter que ahí no vale)"},
    {R"([\N])", R"(«\N» no vale entre corchetes)"},
    {R"([[:foo:]])", R"(no existe la clase de caracteres que se nombra con «[: :]»)"},
    {R"([[.a.]])", R"(«[. .]» y «[= =]» no se admiten)"},
    {R"([:alpha:])", R"(«[: :]» solo vale dentro de otros corchetes)"},
    {R"(\k)", R"(detrás de «\k» falta el nombre de un grupo)"},
    {R"(\g)", R"(detrás de «\g» falta el nombre o el número de un grupo)"},
    {R"(\2)", R"(se nombra un grupo que no existe)"},
    {R"(\u0041)", R"(\F, \L, \l, \N{}, \U y \u no se admiten)"},
    {R"(\c)", R"(no hay nada detrás de «\c»)"},
    {R"(\cñ)", R"(detrás de «\c» tiene que haber una letra o un signo sin acentos)"},
    {R"(\o)", R"(falta la llave detrás de «\o»)"},
    {R"(\o{9})", R"(en «\o{}» hay algo que no es una cifra octal)"},
    {R"(\x{zz})", R"(en «\x{}» hay algo que no es una cifra hexadecimal)"},
    {R"(\x{})", R"(faltan cifras en «\x{}», «\o{}» o «\N{U+}»)"},
    {R"(\x{110000000})", R"(el código de un carácter es demasiado grande)"},
    {R"(\x{d800})", R"(el código de un carácter no vale en Unicode)"},
    {R"(\p)", R"(detrás de «\p» falta el nombre de una propiedad)"},
    {R"(\p{Foo})", R"(no existe la propiedad que se nombra con «\p»)"},
    {R"((?z))", R"(detrás de «(?» hay un carácter sin significado)"},
    {R"((?Pz))", R"(detrás de «(?P» hay un carácter sin significado)"},
    {R"((?i-s-m))", R"(en las opciones de «(?» sobra un guion)"},
    {R"((?#abc)", R"(falta cerrar el comentario «(?#»)"},
    {R"((?<n)", R"(el nombre de un grupo no está bien escrito)"},
    {R"((?<>x))", R"(falta el nombre de un grupo)"},
    {R"((?<1a>x))", R"(el nombre de un grupo no puede empezar por una cifra)"},
    {R"((?<n>a)(?<n>b))", R"(dos grupos tienen el mismo nombre)"},
    {R"((?|(?<a>x)|(?<b>y)))", R"(dos grupos con el mismo número tienen nombres distintos)"},
    {R"((?<=a*)b)", R"(lo que se comprueba hacia atrás no tiene una longitud fija)"},
    {R"((?<=\C)a)", R"(«\C» no vale en lo que se comprueba hacia atrás)"},
    {R"((?<=a{65000}a{65000})b)", R"(lo que se comprueba hacia atrás es demasiado largo)"},
    {R"((?=a\Kb))", R"(«\K» no vale dentro de lo que se comprueba hacia delante o hacia atrás)"},
    {R"((?R)", R"(falta cerrar el paréntesis de «(?R»)"},
    {R"(x(?+a))", R"(detrás de «(?+» o «(?-» falta una cifra)"},
    {R"(x(?-0))", R"(un número relativo no puede ser cero)"},
    {R"((?(1a)b))", R"(falta cerrar el paréntesis de una condición)"},
    {R"((?(1)a|b|c))", R"(se nombra un grupo que no existe)"},
    {R"((a)(?(1)a|b|c))", R"(una condición tiene más de dos alternativas)"},
    {R"((?(?z)a))", R"(falta la condición detrás de «(?(»)"},
    {R"((?(*napla:a)b))", R"(detrás de «(?(» solo vale una comprobación que no vuelve atrás)"},
    {R"((?(DEFINE)a|b))", R"(«(?(DEFINE)» tiene más de una alternativa)"},
    {R"((?(VERSION>=a)b))", R"(el número de «(?(VERSION» no está bien escrito)"},
    {R"((?(99999999999)a))", R"(el número de un grupo es demasiado grande)"},
    {R"((?C999))", R"(el número de «(?C» es demasiado grande)"},
    {R"((?C1a)", R"(falta cerrar el paréntesis de «(?C»)"},
    {R"((?C"abc)", R"(falta cerrar el texto de «(?C»)"},
    {R"((?Cabc))", R"(el texto de «(?C» no empieza bien)"},
    {R"((*FOO)a)", R"(no existe la orden que se da con «(*»)"},
    {R"((*MARK)a)", R"(a «(*MARK)» le falta el nombre)"},
    {R"((*foo:a))", R"(no existe la comprobación que se nombra con «(*»)"},
};

/// An expression that looks back at groups of which each calls the next.
QString LookBehindWithGroups(int count) {
    QString calls;
    QString groups;
    for (int group = 1; group < count; ++group) {
        calls += QStringLiteral("(?%1)").arg(group);
        groups +=
            group < count - 1 ? QStringLiteral("((?%1))").arg(group + 1) : QStringLiteral("(a)");
    }
    return QStringLiteral("(?<=%1)%2").arg(calls, groups);
}

QString NamedGroups(int count) {
    QString groups;
    for (int group = 0; group < count; ++group)
        groups += QStringLiteral("(?<a%1>)").arg(group);
    return groups;
}

QString Named(int length) { return QStringLiteral("(?<%1>a)").arg(QString(length, u'n')); }

} // namespace

TEST_F(BadExpressions, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(ProblemOf("uno(dos"),
              "Expresión no válida: falta un paréntesis de cierre (posición 8).");
    EXPECT_EQ(ProblemOf("año)"),
              "Expresión no válida: sobra un paréntesis de cierre (posición 4).");
    EXPECT_EQ(ProblemOf("*a"), "Expresión no válida: un cuantificador (*, +, ? o {}) no tiene nada "
                               "que repetir (posición 1).");
}

TEST_F(BadExpressions, HasAReasonInSpanishForEveryMistake) {
    for (const Mistake &mistake : Mistakes)
        ExpectReason(QString::fromUtf8(mistake.Term), QString::fromUtf8(mistake.Reason));
}

TEST_F(BadExpressions, HasAReasonInSpanishForEveryLimit) {
    ExpectReason(QString(300, u'(') + QString(300, u')'),
                 "hay demasiados paréntesis unos dentro de otros");
    ExpectReason("(?:a{1,65535}){65535}", "la expresión es demasiado larga");
    ExpectReason(QStringLiteral("()").repeated(65536), "hay demasiados grupos");
    ExpectReason(NamedGroups(10002), "hay demasiados grupos con nombre");
    ExpectReason(Named(40), "el nombre de un grupo es demasiado largo");
    ExpectReason(QStringLiteral("(*MARK:%1)").arg(QString(66000, u'a')),
                 "el nombre de una orden que se da con «(*» es demasiado largo");
    ExpectReason(LookBehindWithGroups(5000),
                 "lo que se comprueba hacia atrás es demasiado complicado");
}

TEST_F(BadExpressions, PutsTheReasonIntoASentenceThatCountsFromOne) {
    EXPECT_EQ(ExpressionProblem("algo no encaja", 4),
              "Expresión no válida: algo no encaja (posición 5).");
}

} // namespace Quillbox
