// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmAcercaDe.h"

#include "base/Version.h"
#include "widgets/Controls.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace Quillbox {
namespace {

constexpr QSize IconSize(64, 64);
constexpr int TextWidth = 400;
constexpr int Margin = 20;
constexpr double TitleScale = 1.9;

const QString Description = QStringLiteral(
    "Quillbox lo escribe y lo cuida el equipo de Quillbox, para quienes disfrutan creando sus "
    "propios juegos.\n\n"
    "El editor está pensado para ejecutar programas de Fenix 0.83b o posterior. ¿Tienes una duda, "
    "se te ocurre una mejora o has dado con un fallo? Cuéntalo: así crece el programa.");

const QString Disclaimer = QStringLiteral(
    "Este programa es gratuito y puedes pasarlo libremente a quien quieras. Se ofrece tal como "
    "es: su autor no se hace responsable de los daños que pudieran sufrir tu equipo o tus "
    "programas.");

QLabel *NewLabel(const QString &name, const QString &text) {
    auto *label = NewControl<QLabel>(name, text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QFrame *NewSeparator(const QString &name) {
    auto *line = new QFrame;
    line->setObjectName(name);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

frmAcercaDe::frmAcercaDe(QWidget *owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("frmAcercaDe"));
    setWindowTitle(QStringLiteral("Acerca de Quillbox"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin * 3 / 5);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    BuildHead(*layout);
    BuildTexts(*layout);
    BuildButton(*layout);
}

void frmAcercaDe::BuildHead(QVBoxLayout &layout) {
    auto *picIcon = new QLabel;
    picIcon->setObjectName(QStringLiteral("picIcon"));
    picIcon->setPixmap(
        QIcon(QStringLiteral(":/icons/quillbox.svg")).pixmap(IconSize, devicePixelRatioF()));
    QLabel *title = NewLabel(QStringLiteral("lblTitle"), QStringLiteral("Quillbox"));
    QFont titleFont = font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * TitleScale);
    titleFont.setBold(true);
    title->setFont(titleFont);

    auto *names = new QVBoxLayout;
    names->setSpacing(2);
    names->addStretch();
    names->addWidget(title);
    names->addWidget(
        NewLabel(QStringLiteral("lblVersion"), QStringLiteral("Versión " QUILLBOX_VERSION)));
    names->addStretch();
    auto *head = new QHBoxLayout;
    head->setSpacing(Margin * 4 / 5);
    head->addWidget(picIcon);
    head->addLayout(names, 1);
    layout.addLayout(head);
}

void frmAcercaDe::BuildTexts(QVBoxLayout &layout) {
    QLabel *description = NewLabel(QStringLiteral("lblDescription"), Description);
    QLabel *disclaimer = NewLabel(QStringLiteral("lblDisclaimer"), Disclaimer);
    for (QLabel *label : {description, disclaimer})
        label->setFixedWidth(TextWidth);
    layout.addWidget(NewSeparator(QStringLiteral("linSeparador1")));
    layout.addWidget(description);
    layout.addWidget(NewSeparator(QStringLiteral("linSeparador2")));
    layout.addWidget(disclaimer);
}

void frmAcercaDe::BuildButton(QVBoxLayout &layout) {
    auto *cmdAceptar = NewControl<QPushButton>("cmdAceptar", "Aceptar");
    cmdAceptar->setDefault(true);
    connect(cmdAceptar, &QPushButton::clicked, this, &QDialog::accept);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdAceptar);
    layout.addLayout(row);
}

} // namespace Quillbox
