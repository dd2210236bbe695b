// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/FindBar.h"

#include "widgets/Controls.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QToolButton>

namespace Quillbox {
namespace {

constexpr int TermWidth = 220;

} // namespace

FindBar::FindBar(QTextEdit &page)
    : QFrame(&page)
    , Page_(page)
    , Term_(new QLineEdit)
    , Result_(new QLabel) {
    setObjectName(QStringLiteral("barBuscarEnPagina"));
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    setCursor(Qt::ArrowCursor);
    Build();
    connect(Term_, &QLineEdit::textChanged, this, &FindBar::FindWhileTyping);
}

void FindBar::Build() {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    auto *caption = new QLabel(QStringLiteral("&Buscar en la página:"));
    caption->setBuddy(Term_);
    layout->addWidget(caption);
    Term_->setObjectName(QStringLiteral("txtBuscarEnPagina"));
    Term_->setFixedWidth(TermWidth);
    Term_->setClearButtonEnabled(true);
    layout->addWidget(Term_);
    AddButton(QStringLiteral("cmdAnteriorEnPagina"), QStringLiteral("A&nterior"),
              &FindBar::FindPrevious);
    AddButton(QStringLiteral("cmdSiguienteEnPagina"), QStringLiteral("S&iguiente"),
              &FindBar::FindNext);
    Result_->setObjectName(QStringLiteral("lblResultadoEnPagina"));
    Result_->setTextFormat(Qt::PlainText);
    layout->addWidget(Result_, 1);
    AddButton(QStringLiteral("cmdCerrarBusqueda"), QStringLiteral("&Cerrar"), &FindBar::Close);
}

void FindBar::AddButton(const QString &name, const QString &caption, void (FindBar::*command)()) {
    auto *button = NewControl<QToolButton>(name, caption);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, command);
    layout()->addWidget(button);
}

void FindBar::Open() {
    const QString selection = Page_.textCursor().selectedText();
    if (!selection.isEmpty() && !selection.contains(QChar::ParagraphSeparator)) {
        const QSignalBlocker blocker(Term_);
        Term_->setText(selection);
    }
    Result_->clear();
    Appear();
    Term_->setFocus();
    Term_->selectAll();
}

void FindBar::Appear() {
    show();
    raise();
    emit VisibilityChanged();
}

/// The bar must not cover what was found.
void FindBar::Tell(const QString &result) {
    Result_->setText(result);
    Appear();
    Page_.ensureCursorVisible();
}

bool FindBar::HasTerm() const { return !Term_->text().isEmpty(); }

void FindBar::FindNext() { Find({}); }

void FindBar::FindPrevious() { Find(QTextDocument::FindBackward); }

void FindBar::Find(QTextDocument::FindFlags direction) {
    Result_->clear();
    if (!HasTerm() || Page_.find(Term_->text(), direction))
        return;
    const QTextCursor place = Page_.textCursor();
    const bool backwards = direction.testFlag(QTextDocument::FindBackward);
    Page_.moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (Page_.find(Term_->text(), direction)) {
        return Tell(backwards ? QStringLiteral("Se sigue desde el final de la página.")
                              : QStringLiteral("Se sigue desde el principio de la página."));
    }
    Page_.setTextCursor(place);
    Tell(QStringLiteral("No se encuentra «%1».").arg(Term_->text()));
}

/// What is found already may become longer with the next letter.
void FindBar::FindWhileTyping() {
    QTextCursor start = Page_.textCursor();
    start.setPosition(start.selectionStart());
    Page_.setTextCursor(start);
    Find({});
}

/// A bar that hides with the keyboard in it would hand it to the page's next link, and what was
/// found would lose its mark.
void FindBar::Close() {
    Page_.setFocus();
    hide();
    emit VisibilityChanged();
}

/// Keys that mean nothing here must not reach the page.
void FindBar::keyPressEvent(QKeyEvent *event) {
    const bool backwards = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Escape:
        return Close();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
        return backwards ? FindPrevious() : FindNext();
    case Qt::Key_F:
        if (event->modifiers() == Qt::ControlModifier)
            Term_->selectAll();
        return;
    default:
        return;
    }
}

} // namespace Quillbox
