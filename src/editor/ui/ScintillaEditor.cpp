// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaEditor.h"

#include "base/Paths.h"
#include "editor/ui/ScintillaAccessible.h"
#include "editor/ui/ScintillaBrackets.h"
#include "editor/ui/ScintillaCarets.h"
#include "editor/ui/ScintillaCompletion.h"
#include "editor/ui/ScintillaKeys.h"
#include "editor/ui/ScintillaMarks.h"
#include "editor/ui/ScintillaMouse.h"
#include "editor/ui/ScintillaZoom.h"

#include <QPointer>

#include <cstring>

namespace Quillbox {

namespace {

/// A line longer than this many bytes is slow to measure.
constexpr BytePosition LongLine = BytePosition{32} * 1024;

/// Pieces of text whose widths are kept once a long line shows. Measuring is what makes such a line
/// slow; with its pieces known, a letter typed into it costs a look-up for each of the others.
constexpr int KnownWidths = 64 * 1024;

bool ShowsLongLine(const ScintillaText &text) {
    const auto top = static_cast<int>(text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE));
    const auto shown = static_cast<int>(text.Send(QsciScintillaBase::SCI_LINESONSCREEN));
    for (int line = top; line <= top + shown && line < text.LineCount(); ++line)
        if (text.LineEnd({line}) - text.LineStart({line}) > LongLine)
            return true;
    return false;
}

} // namespace

ScintillaEditor::ScintillaEditor(const LanguageCatalogue &languages, Dialogs &dialogs,
                                 QWidget *parent)
    : QsciScintillaBase(parent)
    , Languages_(languages)
    , Dialogs_(dialogs)
    , Text_(*this)
    , Styles_(Text_)
    , BulkSteps_(*this)
    , Colouring_(Text_) {
    new ScintillaAccessibility(*this, *new ScintillaOffsets(*this));
    // Tells assistive tools, which then look at it.
    setAccessibleName(QStringLiteral("Editor de código"));
    // Without this, each blink of the caret would paint the window behind the editor as well.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    SetUpControl();
    SetUpDocument();
    connect(&Languages_, &LanguageCatalogue::LanguageChanged, this,
            &ScintillaEditor::FollowLanguage);
    connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this,
            [this](int position) { Colouring_.ColourUpTo(position); });
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this, &ScintillaEditor::OnModified);
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int, int type, const char *, int, int, int, int, int, int token) {
                if ((type & SC_MOD_CONTAINER) != 0)
                    BulkSteps_.TokenReported(token);
            });
    connect(this, &QsciScintillaBase::SCN_SAVEPOINTLEFT, this, &ScintillaEditor::TellChangesSoon);
    connect(this, &QsciScintillaBase::SCN_SAVEPOINTREACHED, this,
            &ScintillaEditor::TellChangesSoon);
    AddAssistants();
}

ScintillaEditor::~ScintillaEditor() = default;

/// What watches the control and belongs to it.
void ScintillaEditor::AddAssistants() {
    Completion_ = new ScintillaCompletion(*this);
    new ScintillaZoom(*this);
    new ScintillaMouse(*this);
    connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { Styles_.ZoomChanged(); });
    connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int updated) {
        if ((updated & (SC_UPDATE_CONTENT | SC_UPDATE_SELECTION)) == 0)
            return;
        MarkBrackets(Text_, Colouring_);
        emit CaretMoved();
    });
}

void ScintillaEditor::SetUpControl() {
    // What has happened already is also reported to the component's own interface for assistive
    // tools, which counts all characters before the place, each time, even without such a tool.
    Text_.Send(SCI_SETMODEVENTMASK, SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE | SC_MOD_CONTAINER);
    Text_.Send(SCI_USEPOPUP, 0);
    Text_.Send(SCI_SETSCROLLWIDTHTRACKING, 1);
    Text_.Send(SCI_SETSCROLLWIDTH, 1);
    // A line at the end of the text can become the first one in view, as any other.
    Text_.Send(SCI_SETENDATLASTLINE, 0);
    Text_.Send(SCI_SETLAYOUTCACHE, SC_CACHE_PAGE);
    ClearLetterCommands(Text_);
    SetUpSeveralCarets(Text_);
    SetUpBracketMarks(Text_);
}

/// What belongs to the text shown and not to the component.
void ScintillaEditor::SetUpDocument() {
    Text_.Send(SCI_SETCODEPAGE, SC_CP_UTF8);
    Text_.Send(SCI_SETLEXER, SCLEX_CONTAINER);
    const bool carriageReturn = std::strcmp(LineEnd, "\r\n") == 0;
    Text_.Send(SCI_SETEOLMODE, carriageReturn ? SC_EOL_CRLF : SC_EOL_LF);
    Styles_.TextReplaced();
}

void ScintillaEditor::PrepareLongLines() {
    if (!ReadyForLongLines_ && ShowsLongLine(Text_)) {
        ReadyForLongLines_ = true;
        Text_.Send(SCI_SETPOSITIONCACHE, KnownWidths);
    }
}

void ScintillaEditor::SetLanguage(const QString &name) {
    if (Language_ == name)
        return;
    Language_ = name;
    FollowLanguage(name, LanguageChange::Everything);
}

void ScintillaEditor::FollowLanguage(const QString &name, LanguageChange change) {
    if (name != Language_)
        return;
    Colouring_.SetRules(Languages_.FindRules(name), change);
    viewport()->update();
}

void ScintillaEditor::SetColorSyntax(bool on) { Styles_.SetColorSyntax(on); }
void ScintillaEditor::SetColor(ColorSlot slot, Color color) { Styles_.SetColor(slot, color); }
void ScintillaEditor::SetFontStyle(FontStyleClass textClass, int style) {
    Styles_.SetFontStyle(textClass, style);
}
void ScintillaEditor::SetFontName(const QString &name) { Styles_.SetFontName(name); }
void ScintillaEditor::SetFontSize(int points) { Styles_.SetFontSize(points); }
void ScintillaEditor::SetTabSize(int columns) { Styles_.SetTabSize(columns); }
void ScintillaEditor::SetLineNumbers(bool shown) { Styles_.SetLineNumbers(shown); }

void ScintillaEditor::OnModified(int position, int type, const char *, int length) {
    if ((type & InsertionReport) != 0)
        Colouring_.TextInserted(position, length);
    else if ((type & DeletionReport) != 0)
        Colouring_.TextDeleted(position, length);
    else
        return;
    TextHasChanged_ = true;
    TellChangesSoon();
}

void ScintillaEditor::Perform(const std::function<void()> &action) {
    const QPointer<ScintillaEditor> self(this);
    ++ActionDepth_;
    try {
        action();
    } catch (...) {
        if (self)
            --ActionDepth_;
        throw;
    }
    if (!self)
        return;
    --ActionDepth_;
    TellChanges();
}

void ScintillaEditor::TellChanges() {
    WillTellChanges_ = false;
    if (ActionDepth_ > 0)
        return;
    const bool textChanged = std::exchange(TextHasChanged_, false);
    if (textChanged)
        Styles_.TextLinesChanged();
    if (textChanged && std::exchange(LineIsHighlighted_, false))
        HighlightLine(Text_, {-1});
    const bool modified = IsModified();
    const QPointer<ScintillaEditor> self(this);
    if (std::exchange(KnownModified_, modified) != modified)
        emit ModifiedChanged(modified);
    if (self && textChanged)
        emit TextChanged();
}

/// The editing component must not be asked for changes while it reports one, and listeners do that.
/// Where no action of this class is under way, they are told as soon as the component is done.
void ScintillaEditor::TellChangesSoon() {
    if (ActionDepth_ == 0 && !std::exchange(WillTellChanges_, true))
        QMetaObject::invokeMethod(this, &ScintillaEditor::TellChanges, Qt::QueuedConnection);
}

} // namespace Quillbox
