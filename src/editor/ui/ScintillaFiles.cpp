// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaFiles.h"

#include "base/AnsiText.h"
#include "base/Paths.h"
#include "base/Utf8.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <new>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

constexpr BytePosition SavedPiece = BytePosition{1024} * 1024;

/// What a view shows and what it would forget with the next text.
struct ShownText {
    std::intptr_t Document;
    std::intptr_t Anchor;
    std::intptr_t Caret;
    std::intptr_t TopLine;
    std::intptr_t LeftOffset;
};

ShownText Remember(const ScintillaText &text) {
    return {text.Send(Sci::SCI_GETDOCPOINTER), text.Send(Sci::SCI_GETANCHOR),
            text.Send(Sci::SCI_GETCURRENTPOS), text.Send(Sci::SCI_GETFIRSTVISIBLELINE),
            text.Send(Sci::SCI_GETXOFFSET)};
}

/// Fills a new text while the one shown before is kept aside; it comes back unless the file was
/// read to its end. Memory that runs out is std::bad_alloc.
class Loading {
  public:
    Loading(const ScintillaText &text, const std::function<void()> &setUp)
        : Text_(text)
        , SetUp_(setUp)
        , Before_(Remember(text))
        , EventMask_(text.Send(Sci::SCI_GETMODEVENTMASK)) {
        Text_.Send(Sci::SCI_ADDREFDOCUMENT, 0, Before_.Document);
        Text_.Send(Sci::SCI_SETMODEVENTMASK, 0);
    }
    ~Loading() {
        if (!Finished_)
            GoBack();
        Text_.Send(Sci::SCI_SETMODEVENTMASK, EventMask_);
        Text_.Send(Sci::SCI_RELEASEDOCUMENT, 0, Before_.Document);
    }
    Loading(const Loading &) = delete;
    Loading &operator=(const Loading &) = delete;

    void Append(std::string_view ansi, std::size_t fileSize) {
        Start(fileSize);
        Utf8_.clear();
        AppendAnsiAsUtf8(ansi, Utf8_);
        Text_.Send(Sci::SCI_APPENDTEXT, static_cast<std::intptr_t>(Utf8_.size()),
                   reinterpret_cast<std::intptr_t>(Utf8_.data()));
        if (Text_.Send(Sci::SCI_GETSTATUS) != Sci::SC_STATUS_OK) {
            Text_.Send(Sci::SCI_SETSTATUS, Sci::SC_STATUS_OK);
            throw std::bad_alloc(); // the component has kept only a part
        }
    }

    void Finish() {
        Start(0);
        Finished_ = true;
        Text_.Send(Sci::SCI_SETUNDOCOLLECTION, 1);
        Text_.Send(Sci::SCI_EMPTYUNDOBUFFER);
        Text_.Send(Sci::SCI_SETSAVEPOINT);
        FollowFirstLineEnd();
        Text_.Send(Sci::SCI_SETSCROLLWIDTH, 1);
        Text_.Send(Sci::SCI_SETXOFFSET, 0);
        Text_.Send(Sci::SCI_SETFIRSTVISIBLELINE, 0);
    }

  private:
    void GoBack() {
        if (!Started_)
            return;
        Text_.Send(Sci::SCI_SETDOCPOINTER, 0, Before_.Document);
        Text_.Send(Sci::SCI_SETSEL, Before_.Anchor, Before_.Caret);
        Text_.Send(Sci::SCI_SETFIRSTVISIBLELINE, Before_.TopLine);
        Text_.Send(Sci::SCI_SETXOFFSET, Before_.LeftOffset);
    }

    void Start(std::size_t fileSize) {
        if (std::exchange(Started_, true))
            return;
        // Characters beyond ASCII take more room than their bytes in the file; most files have few.
        const auto room = static_cast<std::intptr_t>(fileSize + fileSize / 64 + 64);
        const std::intptr_t created = Text_.Send(Sci::SCI_CREATEDOCUMENT, room);
        Text_.Send(Sci::SCI_SETDOCPOINTER, 0, created);
        Text_.Send(Sci::SCI_RELEASEDOCUMENT, 0, created);
        SetUp_();
        Text_.Send(Sci::SCI_SETUNDOCOLLECTION, 0);
    }

    void FollowFirstLineEnd() const {
        if (Text_.LineCount() < 2)
            return;
        const std::string_view end = Text_.Bytes(Text_.LineEnd({0}), Text_.LineStart({1}));
        const int mode = end == "\r\n" ? Sci::SC_EOL_CRLF
                         : end == "\r" ? Sci::SC_EOL_CR
                                       : Sci::SC_EOL_LF;
        Text_.Send(Sci::SCI_SETEOLMODE, mode);
    }

    const ScintillaText &Text_;
    const std::function<void()> &SetUp_;
    ShownText Before_;
    std::intptr_t EventMask_;
    std::string Utf8_;
    bool Started_ = false;
    bool Finished_ = false;
};

/// The first place from `position` on where a character starts or the text ends.
BytePosition CharacterStart(const ScintillaText &text, BytePosition position) {
    const auto isInside = [&text](BytePosition place) {
        return !StartsCharacter(static_cast<char>(text.Send(Sci::SCI_GETCHARAT, place)));
    };
    while (position < text.Length() && isInside(position))
        ++position;
    return std::min(position, text.Length());
}

void ProduceAnsi(const ScintillaText &text, const ByteSink &sink) {
    std::string ansi;
    for (BytePosition start = 0; start < text.Length();) {
        const BytePosition end = CharacterStart(text, start + SavedPiece);
        ansi.clear();
        AppendUtf8AsAnsi(text.Bytes(start, end), ansi);
        if (!sink(ansi))
            return;
        start = end;
    }
}

} // namespace

std::optional<FileError> LoadAnsiFile(const ScintillaText &text, const QString &path,
                                      const std::function<void()> &setUp) {
    Loading loading(text, setUp);
    const std::optional<FileError> error =
        ReadFileBytes(SystemPath(path), [&](std::string_view piece, std::size_t fileSize) {
            loading.Append(piece, fileSize);
        });
    if (!error)
        loading.Finish();
    return error;
}

std::optional<FileError> SaveAnsiFile(const ScintillaText &text, const QString &path) {
    return ReplaceContent(SystemPath(path), [&](const ByteSink &sink) { ProduceAnsi(text, sink); });
}

std::optional<QString> SaveRescueCopy(const ScintillaText &text, const QString &path) {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
                      QStringLiteral("/Rescate"));
    if (!folder.mkpath(QStringLiteral(".")))
        return std::nullopt;
    const QString stamp = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss-zzz");
    const QString name = stamp + u' ' + QFileInfo(SystemPath(path)).fileName();
    const QString copy = QDir::toNativeSeparators(folder.filePath(name));
    if (ReplaceContent(copy, [&](const ByteSink &sink) { ProduceAnsi(text, sink); }))
        return std::nullopt;
    return copy;
}

} // namespace Quillbox
