// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindDialog.h"

#include "search/FindHistory.h"
#include "search/ui/FindMessages.h"
#include "search/ui/FindPlace.h"
#include "search/ui/HistoryBox.h"
#include "search/ui/ScintillaReplace.h"

#include <QCheckBox>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace Quillbox {

namespace {

struct SelectedText {
    QString Term; ///< the selection when it lies in one line
    bool HasSeveralLines = false;
};

SelectedText SelectionOf(const QsciScintillaBase &editor) {
    const ScintillaText text(editor);
    const BytePosition start = text.SelectionStart();
    const BytePosition end = text.SelectionEnd();
    if (text.LineOf(start) != text.LineOf(end))
        return {{}, true};
    const std::string_view bytes = text.Bytes(start, end);
    return {QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())), false};
}

} // namespace

FindDialog::FindDialog(FindState &state, QWidget *parent)
    : QDialog(parent)
    , State_(state)
    , Form_(BuildFindForm(*this))
    , Target_(this) {
    setObjectName(QStringLiteral("frmBuscarReemplazar"));
    setWindowTitle(QStringLiteral("Buscar y reemplazar"));
    Connect();
    FieldsChanged();
}

void FindDialog::Connect() {
    connect(Form_.Next, &QPushButton::clicked, this, [this] { Find(FindDirection::Forward); });
    connect(Form_.Previous, &QPushButton::clicked, this, [this] { Find(FindDirection::Backward); });
    connect(Form_.Replace, &QPushButton::clicked, this, &FindDialog::Replace);
    connect(Form_.ReplaceAll, &QPushButton::clicked, this, &FindDialog::ReplaceAll);
    connect(Form_.Close, &QPushButton::clicked, this, &FindDialog::reject);
    ConnectKey(Qt::SHIFT | Qt::Key_Return, Form_.Previous);
    ConnectKey(Qt::SHIFT | Qt::Key_Enter, Form_.Previous);
    ConnectKey(QKeyCombination(Qt::Key_F3), Form_.Next);
    ConnectKey(Qt::SHIFT | Qt::Key_F3, Form_.Previous);
    connect(Form_.Term, &QComboBox::editTextChanged, this, &FindDialog::FieldsChanged);
    for (const QCheckBox *check : {Form_.MatchCase, Form_.WholeWord, Form_.IsExpression})
        connect(check, &QCheckBox::toggled, this, &FindDialog::FieldsChanged);
    connect(Form_.InSelection, &QCheckBox::clicked, this, &FindDialog::LimitClicked);
    connect(&Target_, &FindTarget::ScopeLost, this, &FindDialog::ShowLimit);
    connect(&Target_, &FindTarget::CountChanged, this,
            [this] { Form_.Count->setText(Target_.CountText()); });
}

void FindDialog::ConnectKey(QKeyCombination key, QPushButton *button) {
    auto *shortcut = new QShortcut(QKeySequence(key), this);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
}

void FindDialog::Open() {
    const bool wasOpen = isVisible();
    const SelectedText selected = SelectionOf(*State_.Editor);
    if (!wasOpen)
        PlaceOverCorner(*this, *State_.Editor);
    show();
    FollowEditor();
    if (selected.HasSeveralLines)
        Target_.LimitToSelection();
    ShowState(selected.Term.isEmpty() ? State_.Request.Term : selected.Term);
    raise();
    activateWindow();
    Form_.Term->setFocus();
    Form_.Term->lineEdit()->selectAll();
}

void FindDialog::ShowState(const QString &term) {
    Form_.Term->SetHistory(State_.Terms);
    Form_.Replacement->SetHistory(State_.Replacements);
    Form_.Term->SetText(term);
    Form_.Replacement->SetText(State_.Replacement);
    Form_.MatchCase->setChecked(State_.Request.MatchCase);
    Form_.WholeWord->setChecked(State_.Request.WholeWord);
    Form_.IsExpression->setChecked(State_.Request.IsExpression);
    Form_.Wrap->setChecked(State_.Wrap);
    ShowLimit();
    FieldsChanged();
}

void FindDialog::hideEvent(QHideEvent *event) {
    QDialog::hideEvent(event);
    // Minimised, it is still open.
    if (event->spontaneous())
        return;
    EmptyMatch_.reset();
    Target_.Follow(nullptr);
}

void FindDialog::FollowEditor() {
    if (isVisible())
        Target_.Follow(State_.Editor);
}

FindRequest FindDialog::RequestOfFields() const {
    return {Form_.Term->Text(), Form_.MatchCase->isChecked(), Form_.WholeWord->isChecked(),
            Form_.IsExpression->isChecked()};
}

/// What was said about another term is taken away; a mistake in an expression shows at once.
void FindDialog::FieldsChanged() {
    const FindRequest request = RequestOfFields();
    for (QPushButton *button : Form_.Actions())
        button->setEnabled(!request.Term.isEmpty());
    Target_.Look(request);
    const MadeSearch made = MakeSearch(request, {});
    const auto *bad = std::get_if<BadExpression>(&made);
    ShowResult(bad != nullptr && !request.Term.isEmpty() ? bad->Reason : QString());
}

void FindDialog::LimitClicked(bool limited) {
    ShowResult({});
    if (!limited)
        Target_.Unlimit();
    else if (!Target_.LimitToSelection())
        ShowResult(QStringLiteral("No hay texto seleccionado."));
    ShowLimit();
}

void FindDialog::ShowLimit() { Form_.InSelection->setChecked(Target_.Scope().has_value()); }

void FindDialog::ShowResult(const QString &text) { Form_.Result->setText(text); }

bool FindDialog::ReadFields() {
    State_.Request = RequestOfFields();
    State_.Replacement = Form_.Replacement->Text();
    State_.Wrap = Form_.Wrap->isChecked();
    RememberText(State_.Terms, State_.Request.Term);
    Form_.Term->SetHistory(State_.Terms);
    const bool showsDocument = ShowsDocument();
    ShowResult(showsDocument ? QString() : QStringLiteral("No hay ningún documento a la vista."));
    return showsDocument && !State_.Request.Term.isEmpty();
}

void FindDialog::MatchFound(const FindOutcome &outcome) {
    EmptyMatch_.reset();
    if (outcome.Match && outcome.Match->Start == outcome.Match->End)
        EmptyMatch_ = outcome.Match->Start;
    if (outcome.Match)
        UncoverSelection(*this, *State_.Editor);
}

void FindDialog::Find(FindDirection direction) {
    if (ReadFields())
        Repeat(direction);
}

void FindDialog::Repeat(FindDirection direction) {
    const FindOutcome outcome = SelectMatch(*State_.Editor, Task(), direction);
    ShowResult(MessageOf(outcome, Task(), direction));
    MatchFound(outcome);
}

void FindDialog::Replace() {
    if (!ReadFields())
        return;
    RememberText(State_.Replacements, State_.Replacement);
    Form_.Replacement->SetHistory(State_.Replacements);
    const std::int64_t caret = ScintillaText(*State_.Editor).Caret();
    const Replaced replaced =
        ReplaceMatch(*State_.Editor, Task(), State_.Replacement,
                     EmptyMatch_ == caret ? EmptyMatch::Taken : EmptyMatch::Passed);
    ShowResult(MessageOf(replaced, Task()));
    MatchFound(replaced.Next);
}

void FindDialog::ReplaceAll() {
    if (!ReadFields())
        return;
    RememberText(State_.Replacements, State_.Replacement);
    Form_.Replacement->SetHistory(State_.Replacements);
    ShowResult(MessageOf(ReplaceAllMatches(*State_.Editor, Task(), State_.Replacement), Task()));
}

} // namespace Quillbox
