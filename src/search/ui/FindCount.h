// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "search/ui/FindState.h"

#include <QTimer>

#include <vector>

namespace Quillbox {

/// Counts the matches in a text a piece at a time, while nothing else is to be done.
class FindCount final : public QObject {
    Q_OBJECT
  public:
    explicit FindCount(QObject *parent);

    /// Counts anew, a moment after the last call. A task without a term counts nothing.
    void Begin(QsciScintillaBase *editor, const FindTask &task);
    void Stop();

    /// "3 de 120", "120 coincidencias", "más de 5000 ..." in Spanish; empty when it is not known.
    QString Text() const;

  signals:
    void Changed();

  private:
    void CountPiece();
    bool CountUntil(BytePosition end);
    void End(bool isComplete);
    QString NumberOfSelection() const;

    QPointer<QsciScintillaBase> Editor_;
    FindTask Task_;
    MovingRange Range_;
    std::unique_ptr<TextSearch> Search_;
    BytePosition Next_ = 0; ///< start of the first line that is not counted
    std::size_t Count_ = 0;
    std::vector<BytePosition> Starts_; ///< of the first matches
    bool IsKnown_ = false;
    bool IsComplete_ = false;
    std::chrono::steady_clock::duration Spent_{};
    QTimer Timer_;
};

} // namespace Quillbox
