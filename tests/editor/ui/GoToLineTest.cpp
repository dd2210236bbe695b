// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "fakes/Waiting.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace Quillbox {

namespace {

class GoingToALine : public EditorKeys {
  protected:
    GoingToALine() {
        Load(QByteArray("linea\n").repeated(499) + "fin");
        Editor->show();
        Editor->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Editor.get(), PatienceMilliseconds));
    }

    /// Opens the dialog, where `person` acts; one that it leaves open is cancelled.
    void Ask(const std::function<void(QDialog &)> &person) {
        bool acted = false;
        QTimer::singleShot(0, Editor.get(), [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            person(*dialog);
            acted = true;
            if (dialog->isVisible())
                dialog->reject();
        });
        Editor->ExecuteCommand(EditorCommand::GoToLine);
        EXPECT_TRUE(acted);
    }
    void GoTo(const QString &line) {
        Ask([&](QDialog &dialog) {
            QTest::keyClicks(dialog.findChild<QLineEdit *>(), line);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    }
    int TopLine() const {
        return static_cast<int>(EditorKeys::Ask(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE));
    }
    int ShownLines() const {
        return static_cast<int>(EditorKeys::Ask(QsciScintillaBase::SCI_LINESONSCREEN));
    }
};

} // namespace

TEST_F(GoingToALine, PutsTheCaretThere) {
    GoTo("250");
    EXPECT_EQ(Caret(), At(249, 0));
    GoTo("3:4");
    EXPECT_EQ(Caret(), At(2, 3));
}

TEST_F(GoingToALine, OutsideTheTextGoesToTheNearestPlace) {
    GoTo("9999");
    EXPECT_EQ(Caret(), At(499, 0));
    GoTo("0");
    EXPECT_EQ(Caret(), At(0, 0));
    GoTo("500:99");
    EXPECT_EQ(Caret(), At(499, 3));
}

TEST_F(GoingToALine, OffersTheCurrentLineToTypeOver) {
    Editor->SetCaretPos(At(41, 2));
    Ask([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>()->selectedText(), "42");
        EXPECT_TRUE(dialog.findChild<QLabel *>("lblLinea")->text().contains("1 a 500"));
    });
}

TEST_F(GoingToALine, SaysWhatItNeedsAndStaysOpen) {
    Editor->SetCaretPos(At(7, 0));
    Ask([](QDialog &dialog) {
        auto *hint = dialog.findChild<QLabel *>("lblAviso");
        auto *line = dialog.findChild<QLineEdit *>();
        QTest::keyClicks(line, "doce");
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(hint->text().contains(QString::fromUtf8("número de línea")));
        EXPECT_EQ(line->selectedText(), "doce");
        QTest::keyClicks(line, "1");
        EXPECT_EQ(hint->text(), "");
    });
    EXPECT_EQ(Caret(), At(7, 0));
}

TEST_F(GoingToALine, ShowsTheLineWithOthersAround) {
    GoTo("250");
    EXPECT_GT(249, TopLine() + 3);
    EXPECT_LT(249, TopLine() + ShownLines() - 3);
}

TEST_F(GoingToALine, DoesNotScrollToALineThatShows) {
    Editor->SetTopIndex({100});
    Editor->SetCaretPos(At(105, 0));
    GoTo("109");
    EXPECT_EQ(TopLine(), 100);
}

TEST_F(GoingToALine, GivesTheKeyboardBack) {
    const auto givenBack = [this](const std::function<void()> &use) {
        Editor->clearFocus();
        use();
        return Editor->window()->focusWidget() == Editor.get();
    };
    EXPECT_TRUE(givenBack([this] { GoTo("12"); }));
    EXPECT_TRUE(givenBack([this] { Ask([](QDialog &) {}); }));
    EXPECT_EQ(Caret(), At(11, 0));
}

} // namespace Quillbox
