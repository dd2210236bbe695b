// SPDX-License-Identifier: GPL-3.0-or-later
// Whole sources, as people write them, and what the scanner finds in them.
#include "editor/EditorProgram.h"
#include "fakes/GoldenCases.h"

namespace Quillbox {
namespace {

class ScannedSource : public EditorProgram, public testing::WithParamInterface<std::string> {
  protected:
    static std::string Line(const char *kind, const QString &line, const QString &name) {
        return kind + (u' ' + line + QStringLiteral(" [") + name + u']').toStdString() + '\n';
    }

    /// One line for every entry of the lists and the tables beneath them, then the user words.
    std::string Found() {
        std::string text;
        for (int entry = 0; entry < Lists.ItemCount(NavigationList::Functions); ++entry) {
            const QString &name =
                Lists.Items[NavigationList::Functions].at(static_cast<std::size_t>(entry));
            EXPECT_EQ(name, Game().FunctionNames[entry]);
            text += Line("function", Game().FunctionLines[entry], name);
        }
        for (int entry = 0; entry < Lists.ItemCount(NavigationList::Types); ++entry) {
            const QString &name =
                Lists.Items[NavigationList::Types].at(static_cast<std::size_t>(entry));
            EXPECT_EQ(name, Game().TypeNames[entry]);
            text += Line("type", Game().TypeLines[entry], name);
        }
        QString words = Languages.Registered.UserWords;
        return text + "words " + words.replace(u'\n', u'|').toStdString() + '\n';
    }
};

TEST_P(ScannedSource, GivesTheExpectedDeclarations) {
    const std::filesystem::path folder = GoldenFolder("symbols") / GetParam();
    Editor().Content = ReadAnsi(folder / "source.prg").replace("\r\n", "\n");

    Scanner.ScanSymbols();

    EXPECT_EQ(Found(), ReadBytes(folder / "expected.txt"));
    EXPECT_EQ(Lists.ItemCount(NavigationList::Labels), 0);
}

INSTANTIATE_TEST_SUITE_P(Symbols, ScannedSource, testing::ValuesIn(GoldenCases("symbols")),
                         [](const auto &golden) { return golden.param; });

} // namespace
} // namespace Quillbox
