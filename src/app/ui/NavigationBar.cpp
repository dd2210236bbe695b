// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/NavigationBar.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>

namespace Quillbox {
namespace {

struct ListDesign {
    NavigationList List;
    const char *Name;
    const char *Label;
    const char *Hint; ///< shown while no entry is chosen
};

constexpr ListDesign Designs[] = {
    {NavigationList::Functions, "cmbFunciones", "Funciones:", "Ir a una función"},
    {NavigationList::Labels, "cmbLabels", "Etiquetas:", "Ir a una etiqueta"},
    {NavigationList::Types, "cmbTypes", "Types:", "Ir a un type"},
};

constexpr int MinimumCharacters = 18;
constexpr int Gap = 6;

} // namespace

NavigationBar::NavigationBar(ListEvent used, QWidget *parent)
    : QToolBar(QStringLiteral("Listas"), parent)
    , Used_(std::move(used)) {
    setObjectName(QStringLiteral("tbListas"));
    setMovable(false);
    for (const ListDesign &design : Designs) {
        auto *label = new QLabel(QString::fromUtf8(design.Label));
        label->setContentsMargins(Gap, 0, Gap, 0);
        auto *box = new QComboBox;
        box->setObjectName(QLatin1String(design.Name));
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(MinimumCharacters);
        box->setPlaceholderText(QString::fromUtf8(design.Hint));
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        box->setAccessibleName(QString::fromUtf8(design.Label).chopped(1));
        box->installEventFilter(this);
        label->setBuddy(box);
        addWidget(label);
        addWidget(box);
        connect(box, &QComboBox::activated, this, [this, design] { Used_(design.List); });
        Boxes_[static_cast<std::size_t>(design.List)] = box;
    }
}

int NavigationBar::ItemCount(NavigationList list) const { return BoxOf(list).count(); }

/// An entry shows only once it is chosen: a list that was just filled has no selection.
void NavigationBar::AddItem(NavigationList list, const QString &text) {
    QComboBox &box = BoxOf(list);
    box.addItem(text);
    if (box.count() == 1)
        box.setCurrentIndex(-1);
}

void NavigationBar::RemoveItem(NavigationList list, int item) { BoxOf(list).removeItem(item); }

int NavigationBar::SelectedItem(NavigationList list) const { return BoxOf(list).currentIndex(); }

bool NavigationBar::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyRelease)
        for (const ListDesign &design : Designs)
            if (watched == &BoxOf(design.List))
                Used_(design.List);
    return QToolBar::eventFilter(watched, event);
}

QComboBox &NavigationBar::BoxOf(NavigationList list) const {
    return *Boxes_.at(static_cast<std::size_t>(list));
}

} // namespace Quillbox
