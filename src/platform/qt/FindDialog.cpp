// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/FindDialog.h"

#include "platform/qt/ScintillaText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {

namespace {

/// Where the buttons stand, to the right of the fields.
constexpr int ButtonColumn = 2;

QString NotFound(const QString &term) { return FindDialog::tr("No se encuentra «%1».").arg(term); }

/// The selection when it lies in one line.
QString SelectedTerm(const QsciScintillaBase &editor) {
    const ScintillaText text(editor);
    const BytePosition start = text.SelectionStart();
    const BytePosition end = text.SelectionEnd();
    if (text.LineOf(start) != text.LineOf(end))
        return {};
    const std::string_view bytes = text.Bytes(start, end);
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

FindDialog &DialogFor(FindState &state, QsciScintillaBase &editor) {
    if (!state.Dialog)
        state.Dialog = new FindDialog(state, editor.window());
    return *state.Dialog;
}

} // namespace

FindDialog::FindDialog(FindState &state, QWidget *parent)
    : QDialog(parent)
    , State_(state) {
    setObjectName(QStringLiteral("frmBuscarReemplazar"));
    setWindowTitle(tr("Buscar y reemplazar"));
    new QGridLayout(this);
    BuildFields();
    BuildButtons();
    EnableButtons();
}

void FindDialog::BuildFields() {
    auto *grid = static_cast<QGridLayout *>(layout());
    const auto addField = [&](int row, const QString &name, const QString &caption) {
        auto *field = new QLineEdit(this);
        field->setObjectName(name);
        field->setMinimumWidth(240);
        auto *label = new QLabel(caption, this);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        return field;
    };
    const auto addCheck = [&](int row, const QString &name, const QString &caption) {
        auto *check = new QCheckBox(caption, this);
        check->setObjectName(name);
        grid->addWidget(check, row, 1);
        return check;
    };
    Term_ = addField(0, QStringLiteral("txtBuscar"), tr("&Buscar:"));
    Replacement_ = addField(1, QStringLiteral("txtReemplazar"), tr("&Reemplazar por:"));
    MatchCase_ =
        addCheck(2, QStringLiteral("chkMayusculas"), tr("Distinguir &mayúsculas y minúsculas"));
    WholeWord_ = addCheck(3, QStringLiteral("chkPalabraCompleta"), tr("&Palabra completa"));
    Result_ = new QLabel(this);
    Result_->setObjectName(QStringLiteral("lblResultado"));
    Result_->setWordWrap(true);
    Result_->setTextFormat(Qt::PlainText);
    grid->addWidget(Result_, 4, 0, 1, 2);
    connect(Term_, &QLineEdit::textChanged, this, &FindDialog::EnableButtons);
}

void FindDialog::BuildButtons() {
    AddButton(QStringLiteral("cmdSiguiente"), tr("&Siguiente"), &FindDialog::FindForward)
        ->setDefault(true);
    AddButton(QStringLiteral("cmdAnterior"), tr("&Anterior"), &FindDialog::FindBackward);
    AddButton(QStringLiteral("cmdReemplazar"), tr("Reempla&zar"), &FindDialog::Replace);
    AddButton(QStringLiteral("cmdReemplazarTodo"), tr("Reemplazar &todo"), &FindDialog::ReplaceAll);
    AddButton(QStringLiteral("cmdCerrar"), tr("&Cerrar"), &FindDialog::reject);
}

QPushButton *FindDialog::AddButton(const QString &name, const QString &caption,
                                   void (FindDialog::*action)()) {
    auto *button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    Buttons_.push_back(button);
    auto *grid = static_cast<QGridLayout *>(layout());
    grid->addWidget(button, static_cast<int>(Buttons_.size()) - 1, ButtonColumn);
    return button;
}

void FindDialog::Open(const QString &term) {
    Term_->setText(term.isEmpty() ? State_.Request.Term : term);
    Replacement_->setText(State_.Replacement);
    MatchCase_->setChecked(State_.Request.MatchCase);
    WholeWord_->setChecked(State_.Request.WholeWord);
    Result_->clear();
    show();
    raise();
    activateWindow();
    Term_->setFocus();
    Term_->selectAll();
}

void FindDialog::ShowResult(const QString &text) { Result_->setText(text); }

bool FindDialog::ReadFields() {
    State_.Request = {Term_->text(), MatchCase_->isChecked(), WholeWord_->isChecked()};
    State_.Replacement = Replacement_->text();
    const bool showsDocument = State_.Editor && State_.Editor->isVisible();
    if (showsDocument)
        Result_->clear();
    else
        ShowResult(tr("No hay ningún documento a la vista."));
    return showsDocument && !State_.Request.Term.isEmpty();
}

void FindDialog::Find(FindDirection direction) {
    if (ReadFields() && !SelectMatch(*State_.Editor, State_.Request, direction))
        ShowResult(NotFound(State_.Request.Term));
}

void FindDialog::Replace() {
    if (!ReadFields())
        return;
    const Replaced replaced = ReplaceMatch(*State_.Editor, State_.Request, State_.Replacement);
    if (!replaced.FoundNext)
        ShowResult(replaced.Selection ? tr("No quedan más apariciones.")
                                      : NotFound(State_.Request.Term));
}

void FindDialog::ReplaceAll() {
    if (!ReadFields())
        return;
    const int count = ReplaceAllMatches(*State_.Editor, State_.Request, State_.Replacement);
    if (count == 0)
        ShowResult(NotFound(State_.Request.Term));
    else
        ShowResult(count == 1 ? tr("Se ha reemplazado 1 aparición.")
                              : tr("Se han reemplazado %1 apariciones.").arg(count));
}

void FindDialog::EnableButtons() {
    for (QPushButton *button : Buttons_)
        button->setEnabled(!Term_->text().isEmpty() || button == Buttons_.back());
}

void ShowFindDialog(FindState &state, QsciScintillaBase &editor) {
    state.Editor = &editor;
    DialogFor(state, editor).Open(SelectedTerm(editor));
}

void FindNext(FindState &state, QsciScintillaBase &editor) {
    if (state.Request.Term.isEmpty())
        return ShowFindDialog(state, editor);
    state.Editor = &editor;
    if (SelectMatch(editor, state.Request, FindDirection::Forward))
        return;
    FindDialog &dialog = DialogFor(state, editor);
    dialog.Open(state.Request.Term);
    dialog.ShowResult(NotFound(state.Request.Term));
}

} // namespace Quillbox
