// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include "fakes/Waiting.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

namespace Quillbox {

namespace {

class EditorEvents : public EditorTest {
  protected:
    void Press(int key, const QString &text = {},
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(Editor.get(), &press);
    }

    void Release(int key, bool autoRepeat = false) {
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, {}, autoRepeat);
        QCoreApplication::sendEvent(Editor.get(), &release);
    }
};

} // namespace

TEST_F(EditorEvents, OfTypingInsertCharacters) {
    Press(Qt::Key_A, "a");
    Press(Qt::Key_Ntilde, "ñ");
    Press(Qt::Key_Tab, "\t");
    EXPECT_EQ(Editor->Text(), "añ\t");
}

TEST_F(EditorEvents, OfTypingShowACharacterThatFilesCannotKeepAsAQuestionMark) {
    Press(0, QString::fromUtf8("Ж"));
    Press(0, QString::fromUtf8("…"));
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("?…"));
}

TEST_F(EditorEvents, OfAnInputMethodInsertWhatItCommits) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("á漢"));
    QCoreApplication::sendEvent(Editor.get(), &event);
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("á?"));
}

TEST_F(EditorEvents, NeverInsertControlCharacters) {
    for (int letter = 0; letter < 26; ++letter)
        Press(Qt::Key_A + letter, QString(QChar(letter + 1)), Qt::ControlModifier);
    Press(Qt::Key_Escape, "\x1B");
    Press(Qt::Key_BracketLeft, "\x1B", Qt::ControlModifier);
    EXPECT_EQ(Editor->Text(), "");
    EXPECT_FALSE(Editor->IsModified());
}

TEST_F(EditorEvents, LeaveTheShortcutsOfTheMenusAlone) {
    Load("uno\ndos");
    Select(At(0, 0), At(0, 3));
    for (const char letter : {'X', 'L', 'Z', 'Y', 'D', 'T', 'U', 'A', 'V'})
        Press(letter, {}, Qt::ControlModifier);
    EXPECT_EQ(Editor->Text(), "uno\ndos");
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 0), At(0, 3)}));
}

TEST_F(EditorEvents, OfLineBreaksKeepTheIndentInOneUndoStep) {
    Load("\t  if x\ny");
    Editor->SetCaretPos(At(0, 7));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text(), "\t  if x\n\t  \ny");
    EXPECT_EQ(Caret(), At(1, 3));
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "\t  if x\ny");
    EXPECT_FALSE(Editor->CanUndo());
}

TEST_F(EditorEvents, OfALineBreakWithinTheIndentKeepWhatLiesBefore) {
    Load("\t\tx");
    Editor->SetCaretPos(At(0, 1));
    Press(Qt::Key_Enter, "\r", Qt::KeypadModifier);
    EXPECT_EQ(Editor->Text().remove('\r'), "\t\n\t\tx");
}

TEST_F(EditorEvents, OfALineBreakReplaceTheSelection) {
    Load("ab\ncd");
    Select(At(0, 1), At(1, 1));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text(), "a\nd");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "ab\ncd");
}

TEST_F(EditorEvents, OfMovingUpAndDownKeepToTheColumnWhereTheCaretWasPut) {
    Load("abcdef\nabcdef\nabcdef");
    Editor->SetCaretPos(At(0, 4));
    Press(Qt::Key_Down);
    EXPECT_EQ(Caret(), At(1, 4));
    Editor->ReplaceSel("x");
    Press(Qt::Key_Down);
    EXPECT_EQ(Caret(), At(2, 5));
    Editor->SetLinePosition({1});
    Press(Qt::Key_Up);
    EXPECT_EQ(Caret(), At(0, 0));
}

TEST_F(EditorEvents, OfALineBreakOverASelectionKeepTheIndentOfItsFirstLine) {
    Load("\tab\n    cd");
    Select(At(0, 2), At(1, 5));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text(), "\ta\n\td");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "\tab\n    cd");
    EXPECT_FALSE(Editor->CanUndo());
}

TEST_F(EditorEvents, AskAboutControlCharactersFirst) {
    Load("x");
    std::vector<int> codes;
    Editor->CharacterTyped = [&codes](int code) {
        codes.push_back(code);
        return true;
    };
    Press(Qt::Key_E, "\x05", Qt::ControlModifier);
    Press(Qt::Key_A, "a");
    Press(Qt::Key_E, "€", Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(codes, std::vector<int>{5});
}

TEST_F(EditorEvents, OfKeysAreToldBeforeAndAfterTheirEffect) {
    std::vector<std::string> told;
    const auto note = [&](const char *what) {
        told.push_back(what + std::string(" ") + Editor->Text().toStdString());
    };
    QObject::connect(Editor.get(), &ScintillaEditor::KeyDown, [&] { note("down"); });
    QObject::connect(Editor.get(), &ScintillaEditor::TextChanged, [&] { note("text"); });
    QObject::connect(Editor.get(), &ScintillaEditor::ModifiedChanged, [&] { note("modified"); });
    QObject::connect(Editor.get(), &ScintillaEditor::KeyUp, [&] { note("up"); });
    Press(Qt::Key_A, "a");
    Release(Qt::Key_A);
    EXPECT_EQ(told, (std::vector<std::string>{"down ", "modified a", "text a", "up a"}));
}

TEST_F(EditorEvents, OfAnEditCannotBeFollowedByLateNews) {
    QSignalSpy changes(Editor.get(), &ScintillaEditor::TextChanged);
    Press(Qt::Key_A, "a");
    Editor->ReplaceSel("b");
    Editor->Undo();
    EXPECT_EQ(changes.count(), 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(EditorEvents, OfALetGoKeyHaveItsWindowsCode) {
    QSignalSpy keys(Editor.get(), &ScintillaEditor::KeyUp);
    const std::pair<int, int> cases[] = {{Qt::Key_Return, 13},
                                         {Qt::Key_Enter, 13},
                                         {Qt::Key_Backspace, 8},
                                         {Qt::Key_Delete, 46},
                                         {Qt::Key_A, 'A'}};
    for (const auto &[key, code] : cases) {
        Release(key);
        EXPECT_EQ(keys.takeLast()[0].toInt(), code);
    }
}

TEST_F(EditorEvents, OfAHeldKeyComeOnceWhenItIsLetGo) {
    QSignalSpy keys(Editor.get(), &ScintillaEditor::KeyUp);
    Release(Qt::Key_A, true);
    Release(Qt::Key_A, true);
    Release(Qt::Key_A);
    EXPECT_EQ(keys.count(), 1);
}

TEST_F(EditorEvents, OfOtherKeysAreNotTakenForDelete) {
    QSignalSpy keys(Editor.get(), &ScintillaEditor::KeyUp);
    for (const int key : {Qt::Key_Left, Qt::Key_F2, Qt::Key_Period, Qt::Key_Home}) {
        Release(key);
        EXPECT_NE(keys.takeLast()[0].toInt(), 46) << key;
    }
}

TEST_F(EditorEvents, OfTheMouseAreTold) {
    Editor->show();
    Load("uno\ndos");
    QSignalSpy released(Editor.get(), &ScintillaEditor::MouseReleased);
    QTest::mouseClick(Editor->viewport(), Qt::LeftButton, {}, QPoint(200, 3));
    EXPECT_EQ(released.count(), 1);
    EXPECT_EQ(Caret(), At(0, 3));
}

TEST_F(EditorEvents, OfTheContextMenuAreTold) {
    Editor->show();
    QSignalSpy menus(Editor.get(), &ScintillaEditor::ContextMenuRequested);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 6), QPoint(105, 206));
    QCoreApplication::sendEvent(Editor->viewport(), &event);
    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus[0][0].toPoint(), QPoint(105, 206));
    EXPECT_TRUE(event.isAccepted());
}

TEST_F(EditorEvents, OfTheFocusAreTold) {
    QSignalSpy focus(Editor.get(), &ScintillaEditor::FocusReceived);
    QFocusEvent event(QEvent::FocusIn);
    QCoreApplication::sendEvent(Editor.get(), &event);
    EXPECT_EQ(focus.count(), 1);
}

TEST_F(EditorEvents, OfSettingTheFocusGiveTheKeyboard) {
    Editor->show();
    Editor->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor.get(), PatienceMilliseconds));
    Editor->clearFocus();
    QSignalSpy focus(Editor.get(), &ScintillaEditor::FocusReceived);
    Editor->SetFocus();
    EXPECT_TRUE(Editor->hasFocus());
    EXPECT_EQ(focus.count(), 1);
}

TEST_F(EditorEvents, OfADropInsertWhatFilesCanKeep) {
    Editor->show();
    QMimeData data;
    data.setText(QString::fromUtf8("señal Ж"));
    QDragEnterEvent enter(QPoint(100, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Editor->viewport(), &enter);
    QDropEvent event(QPointF(100, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Editor->viewport(), &event);
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("señal ?"));
}

TEST_F(EditorEvents, TakeTheTintOffAHighlightedLine) {
    const auto isTinted = [this](int line) {
        return Editor->SendScintilla(QsciScintillaBase::SCI_MARKERGET, line) != 0;
    };
    Load("uno\ndos\ntres");
    Editor->SetHighlightedLine({1});
    EXPECT_TRUE(isTinted(1));
    Editor->SetHighlightedLine({2});
    EXPECT_FALSE(isTinted(1));
    EXPECT_TRUE(isTinted(2));
    Press(Qt::Key_A, "a");
    EXPECT_FALSE(isTinted(2));
    Editor->SetHighlightedLine({0});
    Editor->SetHighlightedLine({-1});
    EXPECT_FALSE(isTinted(0));
}

TEST_F(EditorEvents, MayEndTheEditor) {
    QObject::connect(Editor.get(), &ScintillaEditor::TextChanged, [this] { Editor.reset(); });
    Editor->ReplaceSel("x");
    EXPECT_EQ(Editor, nullptr);
}

TEST_F(EditorEvents, LetAnExceptionOfAListenerThrough) {
    bool thrown = false;
    auto connection = QObject::connect(Editor.get(), &ScintillaEditor::TextChanged,
                                       [] { throw std::runtime_error("oyente"); });
    try {
        Editor->ReplaceSel("x");
    } catch (const std::runtime_error &) {
        thrown = true;
    }
    EXPECT_TRUE(thrown);
    QObject::disconnect(connection);
    QSignalSpy changes(Editor.get(), &ScintillaEditor::TextChanged);
    Editor->ReplaceSel("y");
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(Editor->Text(), "xy");
}

} // namespace Quillbox
