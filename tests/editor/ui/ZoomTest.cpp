// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "editor/ui/ScintillaMarks.h"

#include <QWheelEvent>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

class Zooming : public EditorKeys {
  protected:
    void Turn(int angle, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QWheelEvent event(QPointF(50, 50), Editor->mapToGlobal(QPointF(50, 50)), {}, {0, angle},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Editor->viewport(), &event);
    }
    void PressControl(int key, Qt::KeyboardModifiers others = Qt::NoModifier) {
        Press(key, {}, Qt::ControlModifier | others);
    }
    std::intptr_t Zoom() const { return Ask(Sci::SCI_GETZOOM); }
    std::intptr_t LineHeight() const { return Ask(Sci::SCI_TEXTHEIGHT); }
};

} // namespace

TEST_F(Zooming, ByTheWheelNeedsCtrl) {
    Load(QByteArray(300, '\n'));
    Turn(120);
    EXPECT_EQ(Zoom(), 1);
    Turn(-240);
    EXPECT_EQ(Zoom(), -1);
    Turn(-120, Qt::NoModifier);
    EXPECT_EQ(Zoom(), -1);
}

TEST_F(Zooming, AddsUpTheSmallTurnsOfAFineWheel) {
    for (int turn = 0; turn < 8; ++turn)
        Turn(30);
    EXPECT_EQ(Zoom(), 2);
}

TEST_F(Zooming, ByKeysGoesUpDownAndBack) {
    PressControl(Qt::Key_Plus);
    PressControl(Qt::Key_Plus, Qt::KeypadModifier);
    PressControl(Qt::Key_Plus, Qt::ShiftModifier);
    EXPECT_EQ(Zoom(), 3);
    PressControl(Qt::Key_Minus);
    PressControl(Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_EQ(Zoom(), 1);
    PressControl(Qt::Key_0);
    EXPECT_EQ(Zoom(), 0);
    PressControl(Qt::Key_Plus);
    PressControl(Qt::Key_0, Qt::KeypadModifier);
    EXPECT_EQ(Zoom(), 0);
}

TEST_F(Zooming, LeavesKeysOfOtherCommandsAlone) {
    Press(Qt::Key_Plus, "+");
    Press(Qt::Key_0, "0");
    Press(Qt::Key_Plus, "~", Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(Editor->Text(), "+0~");
    EXPECT_EQ(Zoom(), 0);
}

TEST_F(Zooming, HasBounds) {
    const std::intptr_t normal = LineHeight();
    for (int step = 0; step < 200; ++step)
        PressControl(Qt::Key_Plus);
    EXPECT_GT(LineHeight(), normal);
    EXPECT_LT(LineHeight(), normal * 10);
    for (int step = 0; step < 400; ++step)
        PressControl(Qt::Key_Minus);
    EXPECT_LT(LineHeight(), normal);
    EXPECT_GT(LineHeight(), 1);
}

TEST_F(Zooming, MakesRoomForTheDigitsOfLineNumbers) {
    Editor->SetLineNumbers(true);
    const std::intptr_t width = Ask(Sci::SCI_GETMARGINWIDTHN, Margin::LineNumbers);
    for (int step = 0; step < 8; ++step)
        PressControl(Qt::Key_Plus);
    QCoreApplication::processEvents();
    EXPECT_GT(Ask(Sci::SCI_GETMARGINWIDTHN, Margin::LineNumbers), width * 5 / 4);
}

TEST_F(Zooming, ChangesOneDocumentOnlyAndGoesWithIt) {
    const auto other = NewEditor();
    PressControl(Qt::Key_Plus);
    EXPECT_EQ(ScintillaText(*other).Send(Sci::SCI_GETZOOM), 0);
    other->TakeContentsFrom(*Editor);
    EXPECT_EQ(ScintillaText(*other).Send(Sci::SCI_GETZOOM), 1);
}

TEST_F(Zooming, IsNoEdit) {
    Load("x");
    PressControl(Qt::Key_Plus);
    EXPECT_FALSE(Editor->IsModified());
    EXPECT_FALSE(Editor->CanUndo());
}

} // namespace Quillbox
