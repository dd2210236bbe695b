// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <algorithm>
#include <vector>

namespace Quillbox {

/// A text with caret and selection as plain values: what an editor should hold. Places are counted
/// in characters; a line end is one or two characters.
class PlainTextModel {
  public:
    explicit PlainTextModel(QString text)
        : Text_(std::move(text)) {}

    const QString &Text() const { return Text_; }
    int Anchor() const { return Anchor_; }
    int Caret() const { return Caret_; }
    int Start() const { return std::min(Anchor_, Caret_); }
    int End() const { return std::max(Anchor_, Caret_); }
    int Length() const { return static_cast<int>(Text_.size()); }
    QString Selected() const { return Text_.mid(Start(), End() - Start()); }

    void Select(int anchor, int caret) {
        Anchor_ = anchor;
        Caret_ = caret;
    }
    /// The nearest place at or before `place` that does not lie within a line end.
    int OutsideLineEnd(int place) const {
        const bool within =
            place > 0 && place < Length() && Text_[place - 1] == u'\r' && Text_[place] == u'\n';
        return within ? place - 1 : place;
    }
    int Before(int place) const { return place == 0 ? 0 : OutsideLineEnd(place - 1); }
    int After(int place) const {
        const bool lineEnd = Text_.mid(place, 2) == QStringLiteral("\r\n");
        return std::min(Length(), place + (lineEnd ? 2 : 1));
    }
    int LineStart(int place) const {
        while (place > 0 && Text_[place - 1] != u'\n' && Text_[place - 1] != u'\r')
            --place;
        return place;
    }

    /// One undo step.
    void Replace(int start, int end, const QString &with) {
        if (start == end && with.isEmpty())
            return;
        Done_.resize(Position_);
        Done_.push_back({start, Text_.mid(start, end - start), with});
        ++Position_;
        Text_.replace(start, end - start, with);
        const int caret = start + static_cast<int>(with.size());
        Select(caret, caret);
    }
    bool CanUndo() const { return Position_ > 0; }
    bool CanRedo() const { return Position_ < Done_.size(); }
    void Undo() {
        const Edit &edit = Done_[--Position_];
        Text_.replace(edit.Place, edit.New.size(), edit.Old);
    }
    void Redo() {
        const Edit &edit = Done_[Position_++];
        Text_.replace(edit.Place, edit.Old.size(), edit.New);
    }

  private:
    struct Edit {
        int Place;
        QString Old;
        QString New;
    };

    QString Text_;
    int Anchor_ = 0;
    int Caret_ = 0;
    std::vector<Edit> Done_;
    std::size_t Position_ = 0;
};

} // namespace Quillbox
