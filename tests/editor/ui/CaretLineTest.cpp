// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "fakes/Waiting.h"

#include <QImage>
#include <QTest>

#include <cmath>

namespace Quillbox {

namespace {

struct Ground {
    const char *Name;
    Color Window;
};

class CaretLine : public EditorKeys, public testing::WithParamInterface<Ground> {
  protected:
    CaretLine() {
        for (const ColorSlot slot :
             {ColorSlot::Window, ColorSlot::TextBackground, ColorSlot::OperatorBackground})
            Editor->SetColor(slot, GetParam().Window);
        Editor->SetColor(ColorSlot::HighlightedLine, RgbColor(150, 0, 0));
        Load("\n\n\n\n");
        Editor->show();
        Editor->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Editor.get(), PatienceMilliseconds));
        Editor->setFocus();
    }
    /// The colour to the right of all text in a line.
    QColor Shown(int line) const {
        const auto height = static_cast<int>(Ask(QsciScintillaBase::SCI_TEXTHEIGHT));
        return Editor->viewport()->grab().toImage().pixelColor(300, line * height + height / 2);
    }
    /// 0 to 441.
    static double Difference(const QColor &one, const QColor &other) {
        return std::hypot(one.red() - other.red(), one.green() - other.green(),
                          one.blue() - other.blue());
    }
};

} // namespace

TEST_P(CaretLine, IsVisibleButQuiet) {
    Editor->SetCaretPos(At(1, 0));
    const double difference = Difference(Shown(1), Shown(2));
    EXPECT_GT(difference, 12);
    EXPECT_LT(difference, 60);
}

TEST_P(CaretLine, DoesNotShowWithoutTheKeyboard) {
    Editor->SetCaretPos(At(1, 0));
    Editor->clearFocus();
    EXPECT_EQ(Shown(1), Shown(2));
}

TEST_P(CaretLine, LeavesTheLineOfAnErrorDistinct) {
    Editor->SetCaretPos(At(1, 0));
    Editor->SetHighlightedLine({2});
    EXPECT_GT(Difference(Shown(2), Shown(1)), 40);
    EXPECT_GT(Difference(Shown(2), Shown(3)), 40);
    Editor->SetHighlightedLine({1});
    EXPECT_GT(Difference(Shown(1), Shown(2)), 40);
}

INSTANTIATE_TEST_SUITE_P(Grounds, CaretLine,
                         testing::Values(Ground{"White", RgbColor(255, 255, 255)},
                                         Ground{"Cream", RgbColor(255, 253, 230)},
                                         Ground{"Grey", RgbColor(128, 128, 128)},
                                         Ground{"Navy", RgbColor(0, 0, 80)},
                                         Ground{"Black", RgbColor(0, 0, 0)}),
                         [](const auto &ground) { return std::string(ground.param.Name); });

} // namespace Quillbox
