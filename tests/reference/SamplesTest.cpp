// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/StructureMistake.h"
#include "fakes/SourceTree.h"
#include "reference/Sources.h"

#include <QFile>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

std::vector<Theme> DeliveredThemes() {
    QFile file(QString::fromStdString(SourceTree() / "data/Reference/Themes.txt"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList problems;
    auto themes = ReadThemes(QString::fromUtf8(file.readAll()), problems);
    EXPECT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
    return themes;
}

TEST(CodeSamples, StandUnderEveryTheme) {
    for (const Theme &theme : DeliveredThemes())
        EXPECT_FALSE(theme.Samples.empty()) << theme.Key.toStdString();
}

TEST(CodeSamples, HaveNoMistakeInTheirStructure) {
    for (const Theme &theme : DeliveredThemes())
        for (const CodeSample &sample : theme.Samples) {
            const auto mistake =
                FindStructureMistake(sample.Lines.join(u'\n').toStdString() + "\n");
            EXPECT_FALSE(mistake) << theme.Key.toStdString() << ", line " << mistake->LineNumber
                                  << ": " << mistake->Message;
        }
}

} // namespace
} // namespace Quillbox
