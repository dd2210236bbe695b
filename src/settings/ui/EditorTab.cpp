// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/EditorTab.h"

#include "settings/ItemAttributes.h"
#include "settings/SettingsCheckBox.h"
#include "settings/ui/CheckBoxes.h"
#include "settings/ui/ChoiceList.h"
#include "settings/ui/TabSizeBox.h"
#include "surfaces/Dialogs.h"
#include "widgets/Controls.h"
#include "widgets/InstalledFamily.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {
namespace {

/// Fonts of usual sizes fit in; a larger one is cut and leaves the dialog as large as it is.
constexpr int SampleLines = 3;
constexpr int SampleWidth = 56;

ChoiceList *NewList(const char *name, const char *toolTip, const QStringList &entries) {
    auto *list = new ChoiceList(entries);
    NameControl(*list, name, toolTip);
    list->setAccessibleName(QString::fromUtf8(toolTip));
    return list;
}

QStringList ItemCaptions() {
    QStringList captions;
    for (const SyntaxItem &item : SyntaxItems())
        captions.append(QString::fromUtf8(item.Caption));
    return captions;
}

QStringList Styles() {
    QStringList captions;
    for (const char *caption : StyleCaptions())
        captions.append(QString::fromUtf8(caption));
    return captions;
}

/// A label in a sunken frame on the colour of text boxes.
QLabel *NewFontSample() {
    auto *sample = NewControl<QLabel>("lblFont", "", "Muestra de la fuente");
    sample->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    sample->setBackgroundRole(QPalette::Base);
    sample->setAutoFillBackground(true);
    sample->setAlignment(Qt::AlignCenter);
    sample->setTextFormat(Qt::PlainText);
    sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    sample->setFixedHeight(SampleLines * sample->fontMetrics().lineSpacing());
    return sample;
}

QFrame *NewColorSample() {
    auto *sample = new QFrame;
    NameControl(*sample, "ptbMuestra", "Color de muestra");
    sample->setFrameStyle(QFrame::Box | QFrame::Plain);
    sample->setAutoFillBackground(true);
    sample->setMinimumWidth(SampleWidth);
    return sample;
}

} // namespace

EditorTab::EditorTab()
    : lstItems(NewList("lstItems", "Seleccione ítem a modificar", ItemCaptions()))
    , ptbMuestra(NewColorSample())
    , cmdCambiarColor(
          NewButton("cmdCambiarColor", "Cambiar", "Cambia el color del ítem seleccionado"))
    , lstStyles(NewList("lstStyles", "Estilo de la fuente", Styles()))
    , lblFont(NewFontSample())
    , cmdCambiarFuente(
          NewButton("cmdCambiarFuente", "Cambiar Fuente", "Cambia la fuente del editor"))
    , spnTabSize(new TabSizeBox) {
    auto *layout = new QGridLayout(this);
    layout->addLayout(ItemColumn(), 0, 0);
    layout->addWidget(FontGroup(), 0, 1);
    layout->addWidget(OtherGroup(), 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);
}

QLayout *EditorTab::ItemColumn() {
    auto *column = new QVBoxLayout;
    column->addWidget(lstItems);
    auto *color = new QHBoxLayout;
    color->addWidget(ptbMuestra, 1);
    color->addWidget(cmdCambiarColor);
    column->addLayout(color);
    return column;
}

QGroupBox *EditorTab::FontGroup() {
    auto *group = new QGroupBox(QStringLiteral("Fuente/Colores"));
    auto *caption = NewControl<QLabel>("Label4", "Fuente:");
    caption->setBuddy(cmdCambiarFuente);
    auto *font = new QHBoxLayout;
    font->addWidget(caption);
    font->addStretch();
    font->addWidget(cmdCambiarFuente);
    auto *column = new QVBoxLayout(group);
    column->addWidget(lstStyles);
    column->addLayout(font);
    column->addWidget(lblFont);
    AddCheckBoxes(*column, SettingsFrame::FontAndColors);
    return group;
}

QGroupBox *EditorTab::OtherGroup() {
    auto *group = new QGroupBox(QStringLiteral("Otros"));
    auto *caption = NewControl<QLabel>("Label3", "Tamaño Tabulador:");
    caption->setBuddy(spnTabSize->txtTabSize);
    spnTabSize->setAccessibleName(caption->text());
    auto *row = new QHBoxLayout(group);
    AddCheckBoxes(*row, SettingsFrame::Others);
    row->addStretch();
    row->addWidget(caption);
    row->addWidget(spnTabSize);
    return group;
}

void EditorTab::SetSample(Color color) {
    QPalette colors = ptbMuestra->palette();
    colors.setColor(QPalette::Window, QColor(RedOf(color), GreenOf(color), BlueOf(color)));
    ptbMuestra->setPalette(colors);
}

void EditorTab::SetFontSample(const QString &caption, const FontChoice &font) {
    QFont sample(InstalledFamily(font.Name));
    if (font.Size > 0)
        sample.setPointSizeF(font.Size);
    lblFont->setFont(sample);
    lblFont->setText(caption);
}

} // namespace Quillbox
