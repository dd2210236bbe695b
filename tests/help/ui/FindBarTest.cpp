// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/HelpFolder.h"

#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QToolButton>

namespace Quillbox {
namespace {

/// Finding a text in a page that says "nave" three times.
class FindingInAPage : public testing::Test {
  protected:
    FindingInAPage() {
        WritePage(Folder.filePath("index.htm"), "<p>Una Nave y otra nave.</p><p>La nave azul.</p>");
        Browser.Navigate(Folder.filePath("index.htm"));
        Browser.resize(600, 300);
        Browser.show();
        QApplication::setActiveWindow(&Browser);
        Browser.setFocus();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void Search(const QString &text) {
        Press(Qt::Key_F, Qt::ControlModifier);
        ASSERT_EQ(QApplication::focusWidget(), Term());
        QTest::keyClicks(Term(), text);
    }
    QLineEdit *Term() { return Browser.findChild<QLineEdit *>("txtBuscarEnPagina"); }
    QString Result() { return Browser.findChild<QLabel *>("lblResultadoEnPagina")->text(); }
    QWidget *Bar() { return Browser.findChild<QWidget *>("barBuscarEnPagina"); }
    /// Where the found text begins in the page, -1 when nothing is selected.
    qsizetype Found() {
        const QTextCursor cursor = Browser.textCursor();
        return cursor.hasSelection() ? cursor.selectionStart() : -1;
    }

    static constexpr qsizetype First = 4;
    static constexpr qsizetype Second = 16;
    static constexpr qsizetype Third = 25;
    QTemporaryDir Folder;
    HelpBrowser Browser;
};

TEST_F(FindingInAPage, FindsWhileThePersonTypesWhateverTheLetterCase) {
    Search("nav");
    EXPECT_EQ(Found(), First);
    QTest::keyClicks(Term(), "e a");
    EXPECT_EQ(Found(), Third);
    EXPECT_EQ(Result(), "");
}

TEST_F(FindingInAPage, GoesOnWithReturnAndFThreeAndRoundTheEnd) {
    Search("nave");
    Press(Qt::Key_Return);
    EXPECT_EQ(Found(), Second);
    Press(Qt::Key_F3);
    EXPECT_EQ(Found(), Third);
    EXPECT_EQ(Result(), "");
    Press(Qt::Key_Return);
    EXPECT_EQ(Found(), First);
    EXPECT_EQ(Result(), "Se sigue desde el principio de la página.");
}

TEST_F(FindingInAPage, GoesBackWithShiftAndRoundTheStart) {
    Search("nave");
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Found(), Third);
    EXPECT_EQ(Result(), "Se sigue desde el final de la página.");
    Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Found(), Second);
    EXPECT_EQ(Result(), "");
}

TEST_F(FindingInAPage, HasButtonsForBothDirections) {
    Search("nave");
    Browser.findChild<QToolButton *>("cmdSiguienteEnPagina")->click();
    EXPECT_EQ(Found(), Second);
    Browser.findChild<QToolButton *>("cmdAnteriorEnPagina")->click();
    EXPECT_EQ(Found(), First);
    Browser.findChild<QToolButton *>("cmdCerrarBusqueda")->click();
    EXPECT_FALSE(Bar()->isVisible());
}

TEST_F(FindingInAPage, SaysWhatIsNotThere) {
    Search("navex");
    EXPECT_EQ(Result(), "No se encuentra «navex».");
    Press(Qt::Key_Return);
    EXPECT_EQ(Result(), "No se encuentra «navex».");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Result(), "");
}

TEST_F(FindingInAPage, ClosesWithEscapeAndGoesOnFromThePage) {
    Search("nave");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &Browser);
    EXPECT_EQ(Found(), First);
    Press(Qt::Key_F3);
    EXPECT_EQ(Found(), Second);
    EXPECT_FALSE(Bar()->isVisible());
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Found(), First);
}

TEST_F(FindingInAPage, ComesBackFromHiddenToTellThatItGoesOnFromTheStart) {
    Search("azul");
    Press(Qt::Key_Escape);
    Press(Qt::Key_F3);
    EXPECT_EQ(Found(), Third + 5);
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Bar()->y(), Browser.viewport()->geometry().bottom() + 1);
    EXPECT_EQ(Result(), "Se sigue desde el principio de la página.");
    EXPECT_EQ(QApplication::focusWidget(), &Browser);
}

TEST_F(FindingInAPage, ComesBackFromHiddenToTellThatNothingIsFound) {
    Search("navex");
    Press(Qt::Key_Escape);
    Press(Qt::Key_F3);
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Result(), "No se encuentra «navex».");
}

TEST_F(FindingInAPage, AsksForATextWhenThereIsNoneToGoOnWith) {
    Press(Qt::Key_F3);
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), Term());
}

TEST_F(FindingInAPage, ProposesTheSelection) {
    Browser.setTextCursor(Browser.document()->find("azul"));
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Term()->text(), "azul");
}

TEST_F(FindingInAPage, CoversNothingOfThePage) {
    const int before = Browser.viewport()->height();
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Bar()->y(), Browser.viewport()->geometry().bottom() + 1);
    EXPECT_EQ(Browser.viewport()->height() + Bar()->height(), before);
    EXPECT_EQ(Bar()->width(), Browser.viewport()->width());
    Press(Qt::Key_Escape);
    EXPECT_EQ(Browser.viewport()->height(), before);
}

} // namespace
} // namespace Quillbox
