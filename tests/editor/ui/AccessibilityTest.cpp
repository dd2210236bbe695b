// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "editor/ui/AccessibleEditor.h"
#include "editor/ui/ScintillaAccessible.h"

#include <gmock/gmock.h>

namespace Quillbox {

namespace {

QString InWords(QAccessibleEvent &event) {
    switch (event.type()) {
    case QAccessible::TextInserted: {
        const auto &inserted = static_cast<QAccessibleTextInsertEvent &>(event);
        return QStringLiteral("+%1 ").arg(inserted.changePosition()) + inserted.textInserted();
    }
    case QAccessible::TextRemoved: {
        const auto &removed = static_cast<QAccessibleTextRemoveEvent &>(event);
        return QStringLiteral("-%1 ").arg(removed.changePosition()) + removed.textRemoved();
    }
    case QAccessible::TextCaretMoved:
        return QStringLiteral("caret %1")
            .arg(static_cast<QAccessibleTextCursorEvent &>(event).cursorPosition());
    case QAccessible::TextSelectionChanged: {
        const auto &selected = static_cast<QAccessibleTextSelectionEvent &>(event);
        return QStringLiteral("selection %1-%2")
            .arg(selected.selectionStart())
            .arg(selected.selectionEnd());
    }
    case QAccessible::VisibleDataChanged:
        return QStringLiteral("other text");
    default:
        return QStringLiteral("event %1").arg(event.type());
    }
}

class ScreenReaders : public EditorKeys {
  protected:
    ScreenReaders() {
        Load(QString::fromUtf8("año uno\r\ndos (tres)\r\n\r\nfin").toLatin1());
        Editor->show();
    }

    void Listen() {
        Quillbox::AssistiveTools tools{[] { return true; },
                                       [this](QAccessibleEvent *event) { Note(*event); }};
        new ScintillaAccessibility(*Editor, *Editor->findChild<ScintillaOffsets *>(), tools);
        Editor->grab();
        Told.clear();
    }
    QAccessibleInterface &View() const {
        return *QAccessible::queryAccessibleInterface(Editor.get());
    }
    QAccessibleTextInterface &Reader() const { return *View().textInterface(); }
    QString At(int offset, QAccessible::TextBoundaryType boundary) const {
        int start = -2;
        int end = -2;
        const QString text = Reader().textAtOffset(offset, boundary, &start, &end);
        EXPECT_EQ(text, Reader().text(start, end));
        EXPECT_LE(start, offset);
        return text;
    }
    void Note(QAccessibleEvent &event) {
        EXPECT_EQ(event.object(), Editor.get());
        Told += InWords(event);
    }

    QStringList Told;

    static TextPosition Place(int line, int column) { return {{line}, {column}}; }
};

} // namespace

TEST_F(ScreenReaders, FindAnEditorOfCodeWithText) {
    EXPECT_EQ(View().role(), QAccessible::EditableText);
    EXPECT_EQ(View().text(QAccessible::Name), QString::fromUtf8("Editor de código"));
    EXPECT_TRUE(View().state().multiLine);
    EXPECT_TRUE(View().state().focusable);
    ASSERT_NE(dynamic_cast<AccessibleEditor *>(&View()), nullptr);
    ASSERT_NE(View().textInterface(), nullptr);
    ASSERT_NE(View().editableTextInterface(), nullptr);
}

TEST_F(ScreenReaders, CountCharactersAndNotBytes) {
    EXPECT_EQ(Reader().characterCount(), 26);
    EXPECT_EQ(Reader().text(0, 3), QString::fromUtf8("año"));
    EXPECT_EQ(Reader().text(9, 12), "dos");
    EXPECT_EQ(Reader().text(23, 99), "fin");
    EXPECT_EQ(Reader().text(-5, 1), "a");
    Editor->SetCaretPos(Place(1, 4));
    EXPECT_EQ(Reader().cursorPosition(), 13);
}

TEST_F(ScreenReaders, ReadCharacterWordAndLineAtAPlace) {
    EXPECT_EQ(At(1, QAccessible::CharBoundary), QString::fromUtf8("ñ"));
    EXPECT_EQ(At(1, QAccessible::WordBoundary), QString::fromUtf8("año"));
    EXPECT_EQ(At(15, QAccessible::WordBoundary), "tres");
    EXPECT_EQ(At(5, QAccessible::LineBoundary).trimmed(), QString::fromUtf8("año uno"));
    EXPECT_EQ(At(12, QAccessible::LineBoundary).trimmed(), "dos (tres)");
    EXPECT_EQ(At(24, QAccessible::LineBoundary), "fin");
}

TEST_F(ScreenReaders, ReadTheLinesBeforeAndAfter) {
    int start = 0;
    int end = 0;
    EXPECT_EQ(Reader().textBeforeOffset(12, QAccessible::LineBoundary, &start, &end).trimmed(),
              QString::fromUtf8("año uno"));
    EXPECT_EQ(start, 0);
    EXPECT_EQ(Reader().textAfterOffset(3, QAccessible::LineBoundary, &start, &end).trimmed(),
              "dos (tres)");
    EXPECT_EQ(start, 9);
}

TEST_F(ScreenReaders, SeeAndSetCaretAndSelection) {
    EXPECT_EQ(Reader().selectionCount(), 0);
    Select(Place(0, 4), Place(1, 3));
    int start = 0;
    int end = 0;
    ASSERT_EQ(Reader().selectionCount(), 1);
    Reader().selection(0, &start, &end);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 12);
    Reader().setSelection(0, 0, 3);
    EXPECT_EQ(Editor->GetSel(), (TextRange{Place(0, 0), Place(0, 3)}));
    Reader().removeSelection(0);
    EXPECT_EQ(Reader().selectionCount(), 0);
    Reader().setCursorPosition(14);
    EXPECT_EQ(Caret(), Place(1, 5));
    Reader().setCursorPosition(999);
    EXPECT_EQ(Caret(), Place(3, 3));
}

TEST_F(ScreenReaders, FindCharactersOnTheScreen) {
    const QRect first = Reader().characterRect(0);
    const QRect below = Reader().characterRect(9);
    EXPECT_GT(first.width(), 1);
    EXPECT_EQ(first.left(), below.left());
    EXPECT_GE(below.top(), first.bottom());
    EXPECT_EQ(Reader().offsetAtPoint(below.center()), 9);
    EXPECT_EQ(Reader().offsetAtPoint(QPoint(-500, -500)), -1);
}

TEST_F(ScreenReaders, MayEdit) {
    QAccessibleEditableTextInterface &writer = *View().editableTextInterface();
    writer.insertText(3, QString::fromUtf8("s Ж"));
    EXPECT_EQ(Editor->LineText({0}), QString::fromUtf8("años ? uno"));
    writer.deleteText(3, 6);
    EXPECT_EQ(Editor->LineText({0}), QString::fromUtf8("año uno"));
    writer.replaceText(4, 7, "2");
    EXPECT_EQ(Editor->LineText({0}), QString::fromUtf8("año 2"));
    Editor->Undo();
    EXPECT_EQ(Editor->LineText({0}), QString::fromUtf8("año uno"));
}

TEST_F(ScreenReaders, AreToldOfEditsAndTheCaret) {
    Editor->SetCaretPos(Place(0, 3));
    Listen();
    TypeKeys("s");
    Editor->grab();
    EXPECT_EQ(Told, (QStringList{"+3 s", "caret 4"}));
    Told.clear();
    Press(Qt::Key_Backspace, "\b");
    Editor->grab();
    EXPECT_EQ(Told, (QStringList{"-3 s", "caret 3"}));
    Told.clear();
    Press(Qt::Key_Down);
    Editor->grab();
    EXPECT_EQ(Told, QStringList{"caret 12"});
}

TEST_F(ScreenReaders, AreToldOfTheSelectionAndItsEnd) {
    Listen();
    Press(Qt::Key_Right, {}, Qt::ShiftModifier);
    Editor->grab();
    EXPECT_EQ(Told, (QStringList{"selection 0-1", "caret 1"}));
    Told.clear();
    Press(Qt::Key_Left);
    Editor->grab();
    EXPECT_EQ(Told, (QStringList{"selection 0-0", "caret 0"}));
}

TEST_F(ScreenReaders, AreNotSentHugeTexts) {
    Listen();
    Editor->ReplaceSel(QString(1'000'000, u'x'));
    ASSERT_FALSE(Told.isEmpty());
    EXPECT_EQ(Told[0], "other text");
    for (const QString &event : Told)
        EXPECT_LT(event.size(), 100);
}

TEST_F(ScreenReaders, FollowThroughAHugeText) {
    Load(QByteArray("print 1 // linea\r\n").repeated(1'000'000));
    Listen();
    Editor->SetCaretPos(Place(900'000, 3));
    EXPECT_EQ(Reader().cursorPosition(), 900'000 * 18 + 3);
    for (int count = 0; count < 50; ++count) {
        TypeKeys("x");
        EXPECT_THAT(At(Reader().cursorPosition(), QAccessible::LineBoundary).toStdString(),
                    testing::StartsWith("prix"));
    }
    EXPECT_EQ(Reader().cursorPosition(), 900'000 * 18 + 53);
}

} // namespace Quillbox
