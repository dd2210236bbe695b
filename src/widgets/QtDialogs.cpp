// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/QtDialogs.h"

#include "base/Paths.h"
#include "widgets/AnsiLineEdit.h"
#include "widgets/FileColumns.h"
#include "widgets/InstalledFamily.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFontDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTreeView>

namespace Quillbox {
namespace {

constexpr QSize ChooserSize(760, 460);
constexpr int InputBoxWidth = 460;

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

MessageAnswer AnswerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    default:
        return MessageAnswer::Ok;
    }
}

/// "Programas de Fenix (*.prg)|*.prg" names a caption and a pattern; Qt reads the pattern from
/// brackets in the caption. Where the caption has none they are added and not shown.
void SetFilter(QFileDialog &dialog, const QString &filter) {
    const QString caption = filter.section(u'|', 0, 0);
    const bool hasBrackets = caption.contains(u'(');
    dialog.setOption(QFileDialog::HideNameFilterDetails, !hasBrackets);
    dialog.setNameFilter(
        hasBrackets ? caption : QStringLiteral("%1 (%2)").arg(caption, filter.section(u'|', 1, 1)));
}

/// The ending that a pattern such as "*.prg" asks for.
QString SuffixOf(const QString &filter) { return QFileInfo(filter.section(u'|', 1, 1)).suffix(); }

/// Names what Qt's Spanish texts leave in English in the column of file types.
class SpanishFileTypes final : public QFileIconProvider {
  public:
    QString type(const QFileInfo &info) const override {
        if (info.isDir())
            return QStringLiteral("Carpeta");
        return QStringLiteral("Archivo %1").arg(info.suffix().toUpper()).trimmed();
    }
};

/// Where the chooser starts; empty where that is left to it.
QString StartFolder(const FileChooser &chooser, const QString &lastFolder) {
    if (chooser.Folder.isEmpty())
        return lastFolder;
    const QFileInfo wanted(SystemPath(chooser.Folder));
    const QString folder = wanted.isDir() ? wanted.absoluteFilePath() : wanted.absolutePath();
    return QFileInfo(folder).isDir() ? folder : lastFolder;
}

/// The last part of a full name, as the system spells it; a bare name is proposed as it is.
QString ProposedName(const QString &name) {
    if (!name.contains(u'/') && !name.contains(u'\\'))
        return name;
    const QFileInfo file(SystemPath(name));
    return file.isDir() ? QString() : file.fileName();
}

/// The names of the files take what the others leave: every size, type and date can be read whole.
void ShowWholeColumns(QFileDialog &dialog) {
    QHeaderView *header = dialog.findChild<QTreeView *>(QStringLiteral("treeView"))->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    dialog.resize(dialog.size().expandedTo(ChooserSize));
}

/// Runs the chooser and remembers where the person went.
std::optional<QString> Choose(QFileDialog &dialog, const FileChooser &chooser,
                              QString &lastFolder) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (!chooser.Title.isEmpty())
        dialog.setWindowTitle(chooser.Title);
    SetFilter(dialog, chooser.Filter);
    static SpanishFileTypes fileTypes; // the dialog's thread asks it until the dialog is gone
    dialog.setIconProvider(&fileTypes);
    dialog.setProxyModel(new FileColumns(&dialog));
    ShowWholeColumns(dialog);
    const QString folder = StartFolder(chooser, lastFolder);
    if (!folder.isEmpty())
        dialog.setDirectory(folder);
    dialog.selectFile(ProposedName(chooser.FileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString chosen = dialog.selectedFiles().constFirst();
    lastFolder = QFileInfo(chosen).absolutePath(); // not the dialog's: a path may have been typed
    return QDir::toNativeSeparators(chosen);
}

} // namespace

MessageAnswer QtDialogs::ShowMessage(const Message &message) {
    QMessageBox box(IconOf(message.Icon), message.Caption, message.Text, ButtonsOf(message.Buttons),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    return AnswerOf(box.exec());
}

std::optional<QString> QtDialogs::ShowOpen(const FileChooser &chooser) {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Abrir"));
    dialog.setFileMode(chooser.Flags == FileChooserFlags::FileMustExist ? QFileDialog::ExistingFile
                                                                        : QFileDialog::AnyFile);
    return Choose(dialog, chooser, Folder_);
}

std::optional<QString> QtDialogs::ShowSave(const FileChooser &chooser) {
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Guardar como"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(SuffixOf(chooser.Filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite,
                     chooser.Flags != FileChooserFlags::OverwritePrompt);
    return Choose(dialog, chooser, Folder_);
}

std::optional<QString> QtDialogs::ShowInput(const InputBox &box) {
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(box.Title);
    dialog.setLabelText(box.Prompt);
    dialog.setTextValue(QString()); // makes the text box
    KeepOneAnsiLine(*dialog.findChild<QLineEdit *>());
    dialog.resize(InputBoxWidth, dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.textValue();
}

std::optional<Color> QtDialogs::ShowColor(Color preset) {
    QColorDialog dialog(QColor(RedOf(preset), GreenOf(preset), BlueOf(preset)),
                        QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Elegir color"));
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const QColor chosen = dialog.selectedColor();
    return RgbColor(chosen.red(), chosen.green(), chosen.blue());
}

std::optional<FontChoice> QtDialogs::ShowFont(const FontChoice &preset) {
    QFont font(InstalledFamily(preset.Name));
    if (preset.Size > 0)
        font.setPointSizeF(preset.Size);
    QFontDialog dialog(font, QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Elegir fuente"));
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const QFont chosen = dialog.selectedFont();
    return FontChoice{chosen.family(), chosen.pointSizeF()};
}

} // namespace Quillbox
