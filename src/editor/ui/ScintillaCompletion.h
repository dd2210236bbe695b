// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "surfaces/Completion.h"

#include <QObject>
#include <QPointer>

class QKeyEvent;

namespace Quillbox {

class CompletionPopup;
class ScintillaEditor;

/// Completes words in an editor: inserts the only candidate at once, else shows a list that follows
/// what is typed until a word is chosen or what is typed no longer begins one.
class ScintillaCompletion final : public QObject {
  public:
    explicit ScintillaCompletion(ScintillaEditor &editor);

    void Start(const Completions &candidates);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool IsOpen() const;
    void Open(Completions found);
    void Close();
    void Follow();
    bool TakeKey(const QKeyEvent &key);
    bool MoveBy(int key);
    void Insert(const QString &word);
    std::string_view TypedBytes() const;

    ScintillaEditor &Editor_;
    ScintillaText Text_;
    QPointer<CompletionPopup> Popup_;
    Completions Candidates_; ///< while the list is open
    BytePosition WordStart_ = 0;
    std::string Shown_; ///< what was typed of the word when the list was filled
};

} // namespace Quillbox
