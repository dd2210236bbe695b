// SPDX-License-Identifier: GPL-3.0-or-later
#include "FindFixture.h"

#include "base/AnsiText.h"

#include <gmock/gmock.h>

#include <QKeyEvent>
#include <QSignalSpy>

#include <random>

namespace Quillbox {

TEST_F(FindAndReplace, ReplacesTheMatchAndGoesToTheNext) {
    LoadCode("uno dos uno");
    Look("uno");
    ReplaceBy("tres");
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "uno dos uno");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "tres dos uno");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 9), At(0, 12)));
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "tres dos tres");
    EXPECT_EQ(Result(), "No quedan más coincidencias.");
    Code().Undo();
    EXPECT_EQ(Code().Text(), "tres dos uno");
}

TEST_F(FindAndReplace, ReplacesAllInOneUndoStepAndCounts) {
    LoadCode("uno dos uno\nuno");
    Look("uno");
    ReplaceBy("uno uno");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno uno dos uno uno\nuno uno");
    EXPECT_EQ(Result(), "Se han reemplazado 3 coincidencias.");
    Code().Undo();
    EXPECT_EQ(Code().Text(), "uno dos uno\nuno");
    Look("dos");
    Child<QLineEdit>("txtReemplazar").clear();
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno  uno\nuno");
    EXPECT_EQ(Result(), "Se ha reemplazado 1 coincidencia.");
}

TEST_F(FindAndReplace, ReplacesWithCharactersThatFilesCanKeep) {
    LoadCode("uno");
    Look("uno");
    ReplaceBy("ñЖ");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "ñ?");
}

TEST_F(FindAndReplace, TellsTheEditorsListenersWhatItReplaced) {
    LoadCode("uno");
    QSignalSpy changes(&Code(), &ScintillaEditor::TextChanged);
    Look("uno");
    ReplaceBy("x");
    Click("cmdReemplazarTodo");
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(FindAndReplace, PutsInWhatTheGroupsTook) {
    LoadCode("vida=1\r\na\xF1o=2\r\n");
    LookForExpression("(\\w+)=(\\d)");
    ReplaceBy("$2\\t\\1");
    Click("cmdReemplazar");
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "1\tvida\r\naño=2\r\n");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "1\tvida\r\n2\taño\r\n");
}

TEST_F(FindAndReplace, TakesThePlainReplacementAsItStands) {
    LoadCode("uno");
    Look("uno");
    ReplaceBy("\\1 \\n $0");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "\\1 \\n $0");
}

TEST_F(FindAndReplace, PutsInTheLineEndsOfTheText) {
    LoadCode("a,b,c\r\nd,e\r\n");
    LookForExpression(",");
    ReplaceBy("\\n");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "a\r\nb\r\nc\r\nd\r\ne\r\n");
    Code().Undo();
    EXPECT_EQ(Code().Text(), "a,b,c\r\nd,e\r\n");
}

TEST_F(FindAndReplace, ReplacesEmptyMatchesOneByOne) {
    LoadCode("a\nb\n");
    LookForExpression("^");
    ReplaceBy("// ");
    Click("cmdSiguiente");
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "a\n// b\n");
    EXPECT_EQ(Code().GetSel(), Range(At(2, 0), At(2, 0)));
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "// a\n// // b\n// ");
    EXPECT_EQ(Result(), "Se han reemplazado 3 coincidencias.");
}

TEST_F(FindAndReplace, LeavesTheCaretAloneThatStandsAtAnEmptyMatch) {
    LoadCode("a\nb");
    LookForExpression("^");
    ReplaceBy("x");
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "a\nb") << "nothing was found yet";
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 0)));
}

TEST_F(FindAndReplace, ShowsWhatAFileCannotKeepInTheField) {
    Open();
    auto &field = Child<QLineEdit>("txtReemplazar");
    field.clear();
    for (const char *letter : {"ñ", "Ж"}) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&field, &press);
    }
    EXPECT_EQ(field.text(), "ñ?");
}

TEST_F(FindAndReplace, CountsLargeNumbersInThousands) {
    LoadCode(QByteArray("uno\n").repeated(12345));
    Look("uno");
    ReplaceBy("dos");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Result(), "Se han reemplazado 12.345 coincidencias.");
}

namespace {

/// Replacing many matches at once: the text is put in anew by blocks of lines.
class ReplaceAll : public FindAndReplace {
  protected:
    static constexpr int Lines = 20'000;

    void SetUp() override {
        QByteArray code;
        for (int line = 0; line < Lines; ++line)
            code += "uno " + QByteArray::number(line) + " uno\r\n";
        LoadCode(code);
        Look("uno");
        ReplaceBy("cuatro");
    }

    std::vector<int> Bookmarks() const {
        const ScintillaText text(Code());
        std::vector<int> lines;
        for (std::intptr_t line = 0;; ++line) {
            line = text.Send(QsciScintillaBase::SCI_MARKERNEXT, line, 1 << LineMark::Bookmark);
            if (line < 0)
                return lines;
            lines.push_back(static_cast<int>(line));
        }
    }

    void BookmarkLine(int line) {
        ScintillaText(Code()).Send(QsciScintillaBase::SCI_MARKERADD, line, LineMark::Bookmark);
    }
};

using testing::ElementsAre;

} // namespace

TEST_F(ReplaceAll, IsOneUndoStep) {
    const QString before = Code().Text();
    Click("cmdReemplazarTodo");
    const QString after = QString(before).replace("uno", "cuatro");
    EXPECT_TRUE(Code().Text() == after);
    EXPECT_EQ(Result(), "Se han reemplazado 40.000 coincidencias.");
    Code().Undo();
    EXPECT_TRUE(Code().Text() == before);
    EXPECT_FALSE(Code().CanUndo());
    EXPECT_FALSE(Code().IsModified());
    Code().Redo();
    EXPECT_TRUE(Code().Text() == after);
}

TEST_F(ReplaceAll, LeavesBookmarksInTheirLines) {
    for (const int line : {0, 77, 5000, Lines - 1})
        BookmarkLine(line);
    Click("cmdReemplazarTodo");
    EXPECT_THAT(Bookmarks(), ElementsAre(0, 77, 5000, Lines - 1));
    Code().Undo();
    EXPECT_THAT(Bookmarks(), ElementsAre(0, 77, 5000, Lines - 1));
    Code().Redo();
    EXPECT_THAT(Bookmarks(), ElementsAre(0, 77, 5000, Lines - 1));
}

TEST_F(ReplaceAll, LeavesBookmarksThatWereSetSinceInTheirLinesWhenItIsTakenBack) {
    Click("cmdReemplazarTodo");
    BookmarkLine(300);
    Code().Undo();
    EXPECT_THAT(Bookmarks(), ElementsAre(300));
}

TEST_F(ReplaceAll, LeavesBookmarksInTheirLinesWhenTheDocumentHasMovedMeanwhile) {
    BookmarkLine(300);
    Click("cmdReemplazarTodo");
    Find.Dialog->close();
    const auto other = NewEditor();
    other->TakeContentsFrom(Code());
    other->Undo();
    EXPECT_THAT(Bookmarks(), ElementsAre(300));
}

TEST_F(ReplaceAll, MovesBookmarksWithNewLines) {
    BookmarkLine(2);
    Child<QLineEdit>("txtBuscar").setText(" ");
    Tick("chkExpresion");
    ReplaceBy("\\n");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().LineCount(), 3 * Lines + 1);
    EXPECT_THAT(Bookmarks(), ElementsAre(6));
    Code().Undo();
    EXPECT_THAT(Bookmarks(), ElementsAre(2));
}

TEST_F(ReplaceAll, LeavesTheCaretWhereItIsAndTheViewToo) {
    Code().SetTopIndex({9000});
    SelectCode(At(9002, 4), At(9002, 6));
    Code().SetTopIndex({9000});
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().GetSel(), Range(At(9002, 7), At(9002, 9)));
    EXPECT_EQ(ScintillaText(Code()).Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 9000);
}

TEST_F(ReplaceAll, TellsTheEditorsListenersOnce) {
    QSignalSpy changes(&Code(), &ScintillaEditor::TextChanged);
    Click("cmdReemplazarTodo");
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 1);
    Code().Undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(ReplaceAll, ChangesNothingWhenTheExpressionTakesForever) {
    Code().InsertText(QString(60, 'a') + "!", At(Lines - 5, 0));
    const QString before = Code().Text();
    Tick("chkExpresion");
    Child<QLineEdit>("txtBuscar").setText("uno|(a+)+$");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Result(), "La expresión es demasiado costosa para este texto.");
    EXPECT_TRUE(Code().Text() == before);
}

namespace {

/// Lines of a few letters, so that terms are found.
QString RandomCode(std::mt19937 &random, int length) {
    static const QString letters = QString::fromUtf8("abAB ñÑ€\n");
    QString text;
    for (int count = 0; count < length; ++count) {
        const QChar letter = letters[static_cast<qsizetype>(random()) % letters.size()];
        text += letter == u'\n' ? QStringLiteral("\r\n") : QString(letter);
    }
    return text;
}

} // namespace

TEST_F(FindAndReplace, ReplacesWhatAPlainModelReplacesAndTakesItBack) {
    std::mt19937 random(22);
    for (int round = 0; round < 300; ++round) {
        const QString before = RandomCode(random, static_cast<int>(random() % 3000));
        LoadCode(ToAnsi(before));
        QString term;
        do
            term = RandomCode(random, 1 + static_cast<int>(random() % 2));
        while (term.contains(u'\n'));
        const QString replacement =
            RandomCode(random, static_cast<int>(random() % 4)).remove("\r\n");
        const auto cases = random() % 2 == 0 ? Qt::CaseSensitive : Qt::CaseInsensitive;
        Look(term);
        Child<QCheckBox>("chkMayusculas").setChecked(cases == Qt::CaseSensitive);
        ReplaceBy(replacement);
        Click("cmdReemplazarTodo");
        const QString after = QString(before).replace(term, replacement, cases);
        ASSERT_EQ(Code().Text(), after) << term.toStdString() << " " << replacement.toStdString();
        if (Code().IsModified())
            Code().Undo();
        ASSERT_EQ(Code().Text(), before);
        if (Code().CanRedo())
            Code().Redo();
        ASSERT_EQ(Code().Text(), after);
    }
}

} // namespace Quillbox
