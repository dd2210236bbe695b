// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/EditorFixture.h"
#include "editor/ui/ScintillaMarks.h"
#include "fakes/SourceTree.h"
#include "search/ui/FindCommands.h"
#include "search/ui/FindDialog.h"
#include "widgets/SpanishInterface.h"

#include "fakes/Waiting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

namespace Quillbox {

/// An editor in a main window, and the dialog that finds in it.
class FindAndReplace : public EditorTest {
  protected:
    FindAndReplace() {
        ConnectFinding(*Editor, Find);
        Window.resize(700, 500);
        Window.setCentralWidget(Editor.release());
        Window.show();
    }

    std::unique_ptr<ScintillaEditor> NewEditor() {
        auto editor = EditorTest::NewEditor();
        ConnectFinding(*editor, Find);
        return editor;
    }

    /// Another editor with a text, to which the person has gone.
    std::unique_ptr<ScintillaEditor> EditorWithKeyboard(const QByteArray &text) {
        auto editor = NewEditor();
        editor->show();
        EXPECT_TRUE(editor->OpenFile(Write("otro.bb", text)));
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(editor.get(), &focus);
        return editor;
    }

    ScintillaEditor &Code() const {
        return *static_cast<ScintillaEditor *>(Window.centralWidget());
    }

    void LoadCode(const QByteArray &bytes) {
        ASSERT_TRUE(Code().OpenFile(Write(QStringLiteral("texto.bb"), bytes)));
    }

    FindDialog &Open() {
        Code().ExecuteCommand(EditorCommand::FindAndReplace);
        return *Find.Dialog;
    }

    template <class Widget>
    Widget &Child(const char *name) const {
        return *Find.Dialog->findChild<Widget *>(QLatin1String(name));
    }

    void Look(const QString &term) {
        Open();
        Child<QLineEdit>("txtBuscar").setText(term);
    }

    void LookForExpression(const QString &term) {
        Look(term);
        Tick("chkExpresion");
    }

    void ReplaceBy(const QString &text) { Child<QLineEdit>("txtReemplazar").setText(text); }
    void Tick(const char *check) { Child<QCheckBox>(check).setChecked(true); }
    void Click(const char *button) { Child<QPushButton>(button).click(); }
    QString Result() const { return Child<QLabel>("lblResultado").text(); }

    QString CountShown() const { return Child<QLabel>("lblCoincidencias").text(); }

    void Paint() {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window, PatienceMilliseconds));
        Code().viewport()->repaint();
    }

    void SelectCode(TextPosition start, TextPosition end) {
        const ScintillaText text(Code());
        text.Send(QsciScintillaBase::SCI_SETSEL, text.PositionOf(start), text.PositionOf(end));
    }

    /// The stretches of the text that are marked as matches.
    std::vector<std::string> Marked() const {
        using Sci = QsciScintillaBase;
        const ScintillaText text(Code());
        std::vector<std::string> marked;
        for (BytePosition place = 0; place < text.Length();) {
            const bool isMarked =
                text.Send(Sci::SCI_INDICATORVALUEAT, Indicator::Match, place) != 0;
            const BytePosition end = text.Send(Sci::SCI_INDICATOREND, Indicator::Match, place);
            if (isMarked)
                marked.emplace_back(text.Bytes(place, end));
            if (end <= place)
                break;
            place = end;
        }
        return marked;
    }

    const SpanishInterface Spanish{
        QString::fromStdString((BuiltProgram() / "").string())}; ///< says what is wrong
    FindState Find;
    QMainWindow Window;
};

inline TextRange Range(TextPosition start, TextPosition end) { return {start, end}; }

} // namespace Quillbox
