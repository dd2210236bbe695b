// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/LanguageCatalogue.h"
#include "editor/ui/ScintillaEditor.h"
#include "fakes/FakeSystem.h"
#include "fakes/PaintCounter.h"
#include "state/Language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace Quillbox {

inline LanguageDefinition TestLanguage() {
    LanguageDefinition language;
    language.SingleLineComment = "//";
    language.MultiLineCommentStart = "/*";
    language.MultiLineCommentEnd = "*/";
    language.StringDelimiter = "\"";
    language.Operators = "+\n-\n*\n/\n=\n(\n)\n";
    language.Keywords = "\nIF\nTHEN\nPRINT";
    return language;
}

/// An editor in a window of its own, with a folder for files.
class EditorTest : public testing::Test {
  protected:
    EditorTest() {
        Languages.RegisterLanguage(SourceLanguage.Name, TestLanguage());
        Editor = NewEditor();
    }

    std::unique_ptr<ScintillaEditor> NewEditor() {
        auto editor = std::make_unique<ScintillaEditor>(Languages, Questions);
        editor->SetLanguage(SourceLanguage.Name);
        editor->resize(600, 400);
        return editor;
    }

    QString PathOf(const QString &name) const { return Folder.filePath(name); }

    QString Write(const QString &name, const QByteArray &bytes) const {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    static QByteArray Read(const QString &path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    void Load(const QByteArray &bytes) {
        ASSERT_TRUE(Editor->OpenFile(Write(QStringLiteral("texto.bb"), bytes)));
    }

    /// Puts `text` in as an edit.
    void Type(const QString &text) { Editor->ReplaceSel(text); }

    void Select(TextPosition start, TextPosition end) {
        const ScintillaText text(*Editor);
        text.Send(QsciScintillaBase::SCI_SETSEL, text.PositionOf(start), text.PositionOf(end));
    }

    TextPosition Caret() const { return Editor->GetSel().End; }

    QTemporaryDir Folder;
    LanguageCatalogue Languages;
    CallLog Log;
    FakeDialogs Questions{Log};
    std::unique_ptr<ScintillaEditor> Editor;
};

constexpr TextPosition At(int line, int column) { return {{line}, {column}}; }

inline void PrintTo(const TextPosition &position, std::ostream *stream) {
    *stream << position.Line.Value << ":" << position.Column.Value;
}

inline void PrintTo(const TextRange &range, std::ostream *stream) {
    PrintTo(range.Start, stream);
    *stream << "-";
    PrintTo(range.End, stream);
}

} // namespace Quillbox
