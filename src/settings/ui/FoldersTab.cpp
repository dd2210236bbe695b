// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/FoldersTab.h"

#include "widgets/AnsiLineEdit.h"
#include "widgets/Controls.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {
namespace {

struct PathGroup {
    const char *Caption;
    const char *TextBox;
    const char *Button;
    const char *Label;
    const char *Explanation;
};

constexpr PathGroup Compiler = {
    "Directorio del programa", "txtCompilerPath", "cmdCompilerBrowse", "Label1",
    "Ruta del archivo FXC.exe. Este directorio es necesario para ejecutar tus proramas en Fenix. "};

constexpr PathGroup Help = {
    "Directorio de la ayuda", "txtHelpPath", "cmdHelpBrowse", "Label2",
    "Ruta del archivo principal de ayuda de Fenix. Sin él no podrías usar la ayuda contextual, ni "
    "siquiera acceder a la ayuda normalmente."};

/// A path is stored in an ANSI file.
QLineEdit *NewPathBox(const PathGroup &group) {
    auto *box = new QLineEdit;
    NameControl(*box, group.TextBox);
    box->setAccessibleName(QString::fromUtf8(group.Caption));
    box->setAccessibleDescription(QString::fromUtf8(group.Explanation));
    KeepOneAnsiLine(*box);
    return box;
}

QPushButton *NewBrowseButton(const PathGroup &group) {
    return NewButton(group.Button, "Examinar", "Buscar el archivo...");
}

QGroupBox *Arranged(const PathGroup &group, QLineEdit *box, QPushButton *button) {
    auto *frame = new QGroupBox(QString::fromUtf8(group.Caption));
    auto *explanation = NewControl<QLabel>(group.Label, group.Explanation);
    explanation->setWordWrap(true);
    explanation->setBuddy(box);
    auto *grid = new QGridLayout(frame);
    grid->addWidget(box, 0, 0);
    grid->addWidget(button, 0, 1);
    grid->addWidget(explanation, 1, 0, 1, 2);
    return frame;
}

} // namespace

FoldersTab::FoldersTab()
    : txtCompilerPath(NewPathBox(Compiler))
    , cmdCompilerBrowse(NewBrowseButton(Compiler))
    , txtHelpPath(NewPathBox(Help))
    , cmdHelpBrowse(NewBrowseButton(Help)) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(Arranged(Compiler, txtCompilerPath, cmdCompilerBrowse));
    layout->addWidget(Arranged(Help, txtHelpPath, cmdHelpBrowse));
    layout->addStretch();
}

} // namespace Quillbox
