// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"
#include "fakes/CallLog.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

#include <QStringList>

#include <map>
#include <set>

namespace Quillbox {

/// The disk of a test: names and texts. Names in `Broken` can be neither read nor written.
struct FakeDisk {
    std::map<QString, QString> Texts;
    std::set<QString> Broken;
};

/// An editor that keeps its text as lines and records what it is asked to do.
class FakeEditor : public EditorControl {
  public:
    FakeEditor(CallLog &log, FakeDisk &disk)
        : Log_(log)
        , Disk_(disk) {}

    QString Content;
    bool Modified = false;
    TextRange Selection;
    QString Word;
    TokenClass WordClass = TokenClass::Text;
    bool Possible = true; ///< the answer of every Can...
    mutable int SelectionQueries = 0;
    mutable int WordQueries = 0;

    void SetLanguage(const QString &name) override { Log_.Add("editor.SetLanguage", name); }
    void SetColorSyntax(bool on) override { Log_.Add("editor.SetColorSyntax", on); }
    void SetColor(ColorSlot slot, Color color) override {
        Log_.Add("editor.SetColor", slot, static_cast<int>(color.Value));
    }
    void SetFontStyle(FontStyleClass textClass, int style) override {
        Log_.Add("editor.SetFontStyle", textClass, style);
    }
    void SetFontName(const QString &name) override { Log_.Add("editor.SetFontName", name); }
    void SetFontSize(int points) override { Log_.Add("editor.SetFontSize", points); }
    void SetTabSize(int columns) override { Log_.Add("editor.SetTabSize", columns); }
    void SetLineNumbers(bool shown) override { Log_.Add("editor.SetLineNumbers", shown); }

    int LineCount() const override { return static_cast<int>(Lines().size()); }
    QString LineText(LineIndex line) const override { return Lines().value(line.Value); }
    void VisitLines(const LineVisitor &visit) const override {
        for (int line = 0; line < LineCount(); ++line)
            if (!visit({line}, LineText({line}).toStdString()))
                return;
    }
    void SetLinePosition(LineIndex line) override {
        Log_.Add("editor.SetLinePosition", line.Value);
    }
    QString CurrentWord() const override {
        ++WordQueries;
        return Word;
    }
    TokenClass CurrentTokenClass() const override { return WordClass; }

    TextRange GetSel() const override {
        ++SelectionQueries;
        return Selection;
    }
    void DeleteSel() override { Log_.Add("editor.DeleteSel"); }
    bool CanCopy() const override { return Possible; }
    void Copy() override { Log_.Add("editor.Copy"); }
    bool CanCut() const override { return Possible; }
    void Cut() override { Log_.Add("editor.Cut"); }
    bool CanPaste() const override { return Possible; }
    void Paste() override { Log_.Add("editor.Paste"); }
    bool CanUndo() const override { return Possible; }
    void Undo() override { Log_.Add("editor.Undo"); }
    bool CanRedo() const override { return Possible; }
    void Redo() override { Log_.Add("editor.Redo"); }

    bool OpenFile(const QString &path) override {
        Log_.Add("editor.OpenFile", path);
        if (Disk_.Broken.contains(path) || !Disk_.Texts.contains(path))
            return false;
        Content = Disk_.Texts[path];
        Modified = false;
        return true;
    }
    bool SaveFile(const QString &path) override {
        Log_.Add("editor.SaveFile", path);
        if (Disk_.Broken.contains(path))
            return false;
        Disk_.Texts[path] = Content;
        Modified = false;
        return true;
    }
    bool IsModified() const override { return Modified; }
    QString Text() const override { return Content; }
    void TakeContentsFrom(EditorControl &other) override {
        Log_.Add("editor.TakeContentsFrom");
        Content = other.Text();
        Modified = other.IsModified();
    }
    void SetFocus() override { Log_.Add("editor.SetFocus"); }
    void Print(const QString &fileName) override { Log_.Add("editor.Print", fileName); }

    void SetHighlightedLine(LineIndex line) override {
        Log_.Add("editor.SetHighlightedLine", line.Value);
    }
    void SetTopIndex(LineIndex line) override { Log_.Add("editor.SetTopIndex", line.Value); }
    void SetCaretPos(TextPosition position) override {
        Log_.Add("editor.SetCaretPos", position.Line.Value, position.Column.Value);
    }
    void ExecuteCommand(EditorCommand command) override {
        Log_.Add("editor.ExecuteCommand", command);
    }
    void CompleteWord(const Completions &candidates) override {
        Log_.Add("editor.CompleteWord", static_cast<int>(candidates.size()));
    }
    void InsertText(const QString &text, TextPosition position) override {
        Log_.Add("editor.InsertText", text, position.Line.Value, position.Column.Value);
    }
    void AsOneUndoStep(const std::function<void()> &edits) override {
        Log_.Add("editor.BeginUndoStep");
        edits();
        Log_.Add("editor.EndUndoStep");
    }
    void ReplaceSel(const QString &text) override { Log_.Add("editor.ReplaceSel", text); }

  private:
    QStringList Lines() const { return Content.split(u'\n'); }

    CallLog &Log_;
    FakeDisk &Disk_;
};

/// A document window that knows its caption and panels.
class FakeDocumentWindow : public DocumentWindow {
  public:
    FakeDocumentWindow(CallLog &log, FakeDisk &disk)
        : TextEditor(log, disk)
        , Log_(log) {}

    FakeEditor TextEditor;
    bool Closed = false;
    std::map<StatusPanel, QString> PanelTexts;
    std::map<StatusPanel, bool> PanelsEnabled;

    EditorControl &Editor() override { return TextEditor; }
    QString Caption() const override { return Caption_; }
    void SetCaption(const QString &caption) override {
        Log_.Add("window.SetCaption", caption);
        Caption_ = caption;
    }
    void Show() override { Log_.Add("window.Show", Caption_); }
    void Activate() override { Log_.Add("window.Activate", Caption_); }
    void Maximize() override { Log_.Add("window.Maximize", Caption_); }
    void Close() override {
        Log_.Add("window.Close", Caption_);
        Closed = true;
    }
    void SetPanelText(StatusPanel panel, const QString &text) override {
        Log_.Add("window.SetPanelText", panel, text);
        PanelTexts[panel] = text;
    }
    void EnablePanel(StatusPanel panel, bool enabled) override {
        Log_.Add("window.EnablePanel", panel, enabled);
        PanelsEnabled[panel] = enabled;
    }

  private:
    CallLog &Log_;
    QString Caption_ = QStringLiteral("< sin título >");
};

} // namespace Quillbox
