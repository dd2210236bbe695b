// SPDX-License-Identifier: GPL-3.0-or-later
#include "Report.h"
#include "Workbench.h"

#include "base/AnsiText.h"

#include <algorithm>

namespace Quillbox::Bench {

namespace {

using Sci = QsciScintillaBase;

constexpr int Runs = 3;

double Speed(std::size_t bytes, double seconds) {
    return static_cast<double>(bytes) / static_cast<double>(Megabyte) / seconds;
}

double SpeedOfTheRules(const std::string &utf8) {
    const ColouringRules rules(SourceLanguage());
    constexpr std::size_t pieceSize = 256 * 1024;
    std::vector<TextStyle> styles(pieceSize);
    const double seconds = ShortestTime(Runs, [&] {
        ColouringState state = ColouringState::Code;
        for (std::size_t start = 0; start < utf8.size(); start += pieceSize)
            state =
                rules.Colour(std::string_view(utf8).substr(start, pieceSize), state, styles.data());
    });
    return Speed(utf8.size(), seconds);
}

void ColourAll(const QsciScintillaBase &editor) {
    editor.SendScintilla(Sci::SCI_COLOURISE, 0UL, -1L);
}

double SpeedInTheEditor(const QString &path, std::size_t bytes) {
    Workbench bench;
    std::unique_ptr<ScintillaEditor> editor;
    const double seconds = ShortestTime(
        Runs, [&] { ColourAll(*editor); },
        [&] {
            editor = bench.NewEditor();
            editor->OpenFile(path);
        });
    return Speed(bytes, seconds);
}

/// The editing component's own lexer for the same language, with the same keywords.
double SpeedOfTheComponentsLexer(const std::string &utf8) {
    QString keywords = SourceLanguage().Keywords.toLower();
    const QByteArray words = keywords.replace(u'\n', u' ').toUtf8();
    std::unique_ptr<QsciScintillaBase> editor;
    const auto prepare = [&] {
        editor = std::make_unique<QsciScintillaBase>();
        editor->resize(1000, 700);
        editor->show();
        editor->SendScintilla(Sci::SCI_SETCODEPAGE, Sci::SC_CP_UTF8);
        editor->SendScintilla(Sci::SCI_SETMODEVENTMASK, 0);
        editor->SendScintilla(Sci::SCI_SETLEXER, Sci::SCLEX_BLITZBASIC);
        editor->SendScintilla(Sci::SCI_SETKEYWORDS, static_cast<uintptr_t>(0), words.constData());
        editor->SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 0);
        editor->SendScintilla(Sci::SCI_APPENDTEXT, static_cast<uintptr_t>(utf8.size()),
                              utf8.data());
    };
    const double seconds = ShortestTime(
        Runs, [&] { ColourAll(*editor); }, prepare);
    return Speed(utf8.size(), seconds);
}

} // namespace

void MeasureColouring() {
    const std::string source = SourceText(LargeText);
    const QString path = WriteFile(QStringLiteral("grande.bb"), source);
    std::string utf8;
    AppendAnsiAsUtf8(source, utf8);
    const Goal fast{Goal::Direction::AtLeast, 100};
    const double rules = SpeedOfTheRules(utf8);
    Print("Colouring by the rules alone", rules, "MB/s", fast);
    const double editor = SpeedInTheEditor(path, utf8.size());
    Print("Colouring in the editor", editor, "MB/s", fast);
    const double lexer = SpeedOfTheComponentsLexer(utf8);
    Print({"Colouring in the editor, against the component's own lexer",
           editor,
           lexer,
           "MB/s",
           {Goal::Direction::AtLeast, 2}});
}

} // namespace Quillbox::Bench
