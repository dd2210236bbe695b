// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/SpanishInterface.h"
#include "fakes/SourceTree.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

QString BuiltAppDir() { return QString::fromStdString((BuiltProgram() / "").string()); }

QString Translated(const char *context, const char *text) {
    return QCoreApplication::translate(context, text);
}

/// One of the program's own translations of Qt's texts.
struct Correction {
    QString Source;
    QString Spanish;
};

std::vector<Correction> Corrections() {
    QFile file(QString::fromStdString(
        (SourceTree() / "data" / "translations" / "quillbox_es.ts").string()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::vector<Correction> corrections;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source")
            corrections.push_back({xml.readElementText(), QString()});
        else if (xml.isStartElement() && xml.name() == u"translation")
            corrections.back().Spanish = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return corrections;
}

} // namespace

TEST(SpanishInterface, SaysTheProgramsOwnTextWhereQtHasAnother) {
    EXPECT_EQ(Translated("QFileDialog", "File &name:"), QStringLiteral("File &name:"));
    const SpanishInterface spanish(BuiltAppDir());
    EXPECT_EQ(Translated("QFileDialog", "File &name:"), QStringLiteral("&Nombre de archivo:"));
    EXPECT_EQ(Translated("QFileDialog", "%1 already exists.\nDo you want to replace it?"),
              QStringLiteral("El archivo %1 ya existe.\n¿Quieres reemplazarlo?"));
    EXPECT_EQ(Translated("QPrintSettingsOutput", "Double Sided Printing"),
              QStringLiteral("Impresión a doble cara"));
}

TEST(SpanishInterface, SaysQtsTextWhereTheProgramHasNone) {
    const SpanishInterface spanish(BuiltAppDir());
    EXPECT_EQ(Translated("QPlatformTheme", "Cancel"), QStringLiteral("Cancelar"));
}

TEST(SpanishInterface, NamesKeysAsTheHelpDoes) {
    const SpanishInterface spanish(BuiltAppDir());
    const auto keys = [](const char *sequence) {
        return QKeySequence(QLatin1String(sequence)).toString(QKeySequence::NativeText);
    };
    EXPECT_EQ(keys("Ctrl+Shift+S"), QStringLiteral("Ctrl+Mayús+S"));
    EXPECT_EQ(keys("Ctrl+Space"), QStringLiteral("Ctrl+Espacio"));
    EXPECT_EQ(keys("Del"), QStringLiteral("Supr"));
}

TEST(SpanishInterface, HasItsTextsInACopiedProgramFolder) {
    const QTemporaryDir copy;
    ASSERT_TRUE(QDir(copy.path()).mkpath(QStringLiteral("translations")));
    const QString name = QStringLiteral("translations/quillbox_es.qm");
    ASSERT_TRUE(QFile::copy(BuiltAppDir() + name, copy.filePath(name)));
    const SpanishInterface spanish(copy.path() + u'/');
    EXPECT_EQ(Translated("QFileDialog", "Files of type:"), QStringLiteral("Archivos de tipo:"));
}

TEST(SpanishInterface, SpeaksAsTheProgramDoes) {
    ASSERT_GT(Corrections().size(), 300U);
    for (const Correction &correction : Corrections()) {
        const std::string text = correction.Spanish.toStdString();
        EXPECT_NE(text, "") << correction.Source.toStdString();
        for (const char *word : {"fichero", "desea", "usted", "seleccione", "introduzca"})
            EXPECT_FALSE(correction.Spanish.contains(QLatin1String(word), Qt::CaseInsensitive))
                << text;
    }
}

TEST(SpanishInterface, KeepsWhatQtPutsIntoItsTexts) {
    for (const Correction &correction : Corrections())
        for (const char *place : {"%1", "%2", "\n"})
            EXPECT_EQ(correction.Spanish.contains(QLatin1String(place)),
                      correction.Source.contains(QLatin1String(place)))
                << correction.Source.toStdString();
}

} // namespace Quillbox
