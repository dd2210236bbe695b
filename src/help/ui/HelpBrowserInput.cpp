// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/HelpBrowser.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

namespace Quillbox {

/// A key that works on the page. The Edit menu has some of them, too; while the page has the
/// keyboard they are the page's.
struct HelpBrowser::PageKey {
    QKeyCombination Key;
    void (HelpBrowser::*Command)();
};

const HelpBrowser::PageKey *HelpBrowser::FindPageKey(const QKeyEvent &event) {
    static constexpr PageKey Keys[] = {
        {Qt::CTRL | Qt::Key_F, &HelpBrowser::ShowFindBar},
        {Qt::Key_F3, &HelpBrowser::FindNext},
        {Qt::SHIFT | Qt::Key_F3, &HelpBrowser::FindPrevious},
        {Qt::CTRL | Qt::Key_Plus, &HelpBrowser::ZoomLarger},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Plus, &HelpBrowser::ZoomLarger},
        {Qt::CTRL | Qt::Key_Equal, &HelpBrowser::ZoomLarger},
        {Qt::CTRL | Qt::Key_Minus, &HelpBrowser::ZoomSmaller},
        {Qt::CTRL | Qt::Key_0, &HelpBrowser::ZoomReset},
        {Qt::ALT | Qt::Key_Left, &HelpBrowser::backward},
        {Qt::ALT | Qt::Key_Right, &HelpBrowser::forward},
        {Qt::CTRL | Qt::Key_C, &HelpBrowser::copy},
        {Qt::CTRL | Qt::Key_A, &HelpBrowser::selectAll},
    };
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
    for (const PageKey &key : Keys)
        if (key.Key == pressed)
            return &key;
    return nullptr;
}

bool HelpBrowser::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride &&
        FindPageKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QTextBrowser::event(event);
}

void HelpBrowser::keyPressEvent(QKeyEvent *event) {
    if (const PageKey *key = FindPageKey(*event))
        return (this->*key->Command)();
    QTextBrowser::keyPressEvent(event);
}

void HelpBrowser::wheelEvent(QWheelEvent *event) {
    if (!(event->modifiers() & Qt::ControlModifier))
        return QTextBrowser::wheelEvent(event);
    if (const int notches = Notches_.Take(event->angleDelta().y()))
        ZoomStep(notches);
    event->accept();
}

void HelpBrowser::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::BackButton)
        return backward();
    if (event->button() == Qt::ForwardButton)
        return forward();
    QTextBrowser::mouseReleaseEvent(event);
}

void HelpBrowser::contextMenuEvent(QContextMenuEvent *event) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuPagina"));
    const auto add = [&](const QString &caption, const QKeySequence &key, bool enabled,
                         auto command) {
        QAction *action = menu.addAction(caption, this, command);
        action->setShortcut(key);
        action->setEnabled(enabled);
    };
    const QString link = anchorAt(event->pos());
    add(QStringLiteral("&Atrás"), Qt::ALT | Qt::Key_Left, isBackwardAvailable(),
        &HelpBrowser::backward);
    add(QStringLiteral("A&delante"), Qt::ALT | Qt::Key_Right, isForwardAvailable(),
        &HelpBrowser::forward);
    menu.addSeparator();
    add(QStringLiteral("&Copiar"), QKeySequence::Copy, textCursor().hasSelection(),
        &HelpBrowser::copy);
    add(QStringLiteral("Copiar la dirección del &enlace"), {}, !link.isEmpty(), [this, link] {
        QGuiApplication::clipboard()->setText(
            Repaired(source().resolved(QUrl(link))).toString(QUrl::FullyEncoded));
    });
    add(QStringLiteral("&Seleccionar todo"), QKeySequence::SelectAll, true,
        &HelpBrowser::selectAll);
    menu.addSeparator();
    add(QStringLiteral("&Buscar en la página..."), QKeySequence::Find, true,
        &HelpBrowser::ShowFindBar);
    menu.exec(event->globalPos());
}

void HelpBrowser::resizeEvent(QResizeEvent *event) {
    QTextBrowser::resizeEvent(event);
    PlaceFindBar();
}

} // namespace Quillbox
