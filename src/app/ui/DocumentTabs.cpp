// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/DocumentTabs.h"

#include <QSignalBlocker>

namespace Quillbox {
namespace {

/// A file name's "&" must not become a mnemonic.
QString TabText(const QString &caption) {
    return QString(caption).replace(u'&', QStringLiteral("&&"));
}

} // namespace

DocumentTabs::DocumentTabs(std::function<void(int)> click, QWidget *parent)
    : QTabBar(parent)
    , Click_(std::move(click)) {
    setObjectName(QStringLiteral("tabDocuments"));
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    addTab(QStringLiteral("Ayuda"));
    connect(this, &QTabBar::currentChanged, this, [this](int index) { SelectTab(index + 1); });
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0 && index + 1 == SelectedTab_)
            Click_(SelectedTab_);
    });
}

void DocumentTabs::AddTab(int position, const QString &caption) {
    const QSignalBlocker blocker(this);
    insertTab(position - 1, TabText(caption));
}

void DocumentTabs::RemoveTab(int position) {
    const QSignalBlocker blocker(this);
    removeTab(position - 1);
    if (position == SelectedTab_)
        SelectedTab_ = 0;
}

void DocumentTabs::SelectTab(int position) {
    const QSignalBlocker blocker(this);
    SelectedTab_ = position;
    setCurrentIndex(position - 1);
    Click_(position);
}

int DocumentTabs::SelectedTab() const { return SelectedTab_; }

void DocumentTabs::SetTabCaption(int position, const QString &caption) {
    const QString text = TabText(caption);
    if (tabText(position - 1) != text)
        setTabText(position - 1, text);
}

} // namespace Quillbox
