// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/FixedTable.h"

#include <QString>

namespace Quillbox {

class DocumentWindow;

/// What a document is called until it is first saved. It is the caption of every new document
/// window, and a document is untitled exactly when its file name equals it.
inline const QString UntitledName = QStringLiteral("< sin título >");

/// Declarations of one kind found in a document; lines are 0-based and kept as decimal text.
using SymbolTexts = FixedTable<QString, 0, 255>;

struct Document {
    DocumentWindow *Window = nullptr; ///< owned by the main window
    QString FileName;                 ///< without folder, or UntitledName
    QString Directory;                ///< with its separator at the end; empty without a name
    int Index = 0;                    ///< its own position, 1 to 1000
    SymbolTexts FunctionNames;
    SymbolTexts FunctionLines;
    SymbolTexts TypeNames;
    SymbolTexts TypeLines;
    bool Scanning = false; ///< a symbol scan is pending or running
};

inline bool IsUntitled(const Document &document) { return document.FileName == UntitledName; }

/// The open documents. They are kept dense at positions 1 to DocumentCount, in tab order; document
/// k is shown on tab k + 1, because tab 1 is the help page.
struct DocumentRegistry {
    static constexpr int Capacity = 1000;

    FixedTable<Document, 1, Capacity> Documents;
    int DocumentCount = 0;
    int CurrentIndex = 0; ///< 0: the help page is active

    /// The document at CurrentIndex; run-time error 9 while the help page is active.
    Document &Current() { return Documents[CurrentIndex]; }
};

} // namespace Quillbox
