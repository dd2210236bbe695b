// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsDialog.h"

#include "base/Numbers.h"
#include "base/ResumeNext.h"
#include "settings/SettingsEffect.h"
#include "settings/SettingsWindow.h"
#include "state/settings.h"
#include "surfaces/CompanionPrograms.h"

#include <algorithm>

namespace Quillbox {
namespace {

constexpr int LowestTabSize = 1;
constexpr int HighestTabSize = 255;

/// What a chooser answers; one that fails counts as cancelled.
template <typename Show>
auto AnswerOf(Show show) {
    decltype(show()) answer;
    ResumeNext().Try([&] { answer = show(); });
    return answer;
}

/// The folder of the language tools: as many characters are cut as "FXC.exe" has, whatever the
/// compiler is called.
QString ToolsFolderOf(const QString &compilerPath) {
    constexpr qsizetype fileNameLength = 7;
    if (compilerPath.size() < fileNameLength)
        throw InvalidArgument();
    return compilerPath.chopped(fileNameLength);
}

} // namespace

SettingsDialog::SettingsDialog(SettingsWindow &window, Settings &settings, Dialogs &dialogs,
                               SettingsEffect &effect, CompanionPrograms &companions)
    : Window_(window)
    , Settings_(settings)
    , Dialogs_(dialogs)
    , Effect_(effect)
    , Companions_(companions) {}

void SettingsDialog::Form_Load() {
    LoadColors(ItemAttributes_, Settings_);
    LoadStyles(ItemAttributes_, Settings_);
    ShowSettings();
}

void SettingsDialog::ShowSettings() {
    Window_.SetText(SettingsText::CompilerPath, Settings_.FenixCPath);
    Window_.SetText(SettingsText::HelpPath, Settings_.HelpPath);
    ShowCheckBoxes({SettingsFrame::FontAndColors});
    Window_.SetText(SettingsText::TabSize, QString::number(Settings_.TabSize));
    ShowCheckBoxes({SettingsFrame::Others, SettingsFrame::Symbols, SettingsFrame::Help});
    Window_.SetTabSpinner(Settings_.TabSize);
    Window_.SelectItem(0);
    ShowItemColor();
    Font_ = {Settings_.Font, static_cast<double>(Settings_.FontSize)};
    ShowFontSample();
}

void SettingsDialog::ShowCheckBoxes(std::initializer_list<SettingsFrame> frames) {
    for (const SettingsCheckBox &box : SettingsCheckBoxes())
        if (std::ranges::find(frames, box.Frame) != frames.end())
            Window_.SetChecked(QString::fromUtf8(box.Name), Settings_.*box.Field);
}

/// The labels' and types' boxes are stored after the scan, which therefore still goes by their
/// previous values; the next scan goes by the new ones.
void SettingsDialog::StoreSettings() {
    Settings_.FenixCPath = Window_.Text(SettingsText::CompilerPath);
    Settings_.HelpPath = Window_.Text(SettingsText::HelpPath);
    Settings_.MainPath = ToolsFolderOf(Settings_.FenixCPath);
    StoreCheckBoxes(Storing::BeforeTabSize);
    Settings_.TabSize = ToByte(TabSizeNumber());
    StoreCheckBoxes(Storing::BeforeScan);
    Effect_.RefreshSymbols();
    StoreCheckBoxes(Storing::AfterScan);
    SaveColors(ItemAttributes_, Settings_);
    SaveStyles(ItemAttributes_, Settings_);
    Settings_.Font = Font_.Name;
    Settings_.FontSize = ToByte(Font_.Size);
}

void SettingsDialog::StoreCheckBoxes(Storing when) {
    for (const SettingsCheckBox &box : SettingsCheckBoxes())
        if (box.Stored == when)
            Settings_.*box.Field = Window_.IsChecked(QString::fromUtf8(box.Name));
}

void SettingsDialog::lstItems_Click() {
    ShowItemColor();
    ShowItemStyle();
}

void SettingsDialog::ShowItemColor() {
    Window_.SetSample(SelectedAttribute().Color);
    Window_.EnableStyles(Window_.SelectedItem() != BackgroundRow);
}

void SettingsDialog::ShowItemStyle() { Window_.SelectStyle(SelectedAttribute().Style); }

void SettingsDialog::lstStyles_Click(int style) { SelectedAttribute().Style = ToByte(style); }

void SettingsDialog::cmdCambiarColor_Click() {
    const auto chosen = AnswerOf([this] { return Dialogs_.ShowColor(SelectedAttribute().Color); });
    if (!chosen)
        return;
    SelectedAttribute().Color = *chosen;
    Window_.SetSample(*chosen);
}

void SettingsDialog::cmdCambiarFuente_Click() {
    const auto chosen = AnswerOf([this] { return Dialogs_.ShowFont(Font_); });
    if (!chosen)
        return;
    Font_ = *chosen;
    ShowFontSample();
}

void SettingsDialog::ShowFontSample() {
    Window_.SetFontSample(QString::number(Font_.Size) + u' ' + Font_.Name, Font_);
}

void SettingsDialog::cmdCompilerBrowse_Click() {
    if (const auto chosen = Browse(QStringLiteral("Seleccionar FXC.exe"), Settings_.FenixCPath,
                                   QStringLiteral("Archivo FXC.exe|FXC.exe")))
        Window_.SetText(SettingsText::CompilerPath, *chosen);
}

/// The filter asks for "index.html", though the help page that comes with the program is called
/// "index.htm".
void SettingsDialog::cmdHelpBrowse_Click() {
    if (const auto chosen = Browse(QStringLiteral("Seleccionar index.html"), Settings_.HelpPath,
                                   QStringLiteral("Índice de la ayuda (index.html)|index.html")))
        Window_.SetText(SettingsText::HelpPath, *chosen);
}

/// Starts from the stored path, not from what the text box holds meanwhile.
std::optional<QString> SettingsDialog::Browse(const QString &title, const QString &stored,
                                              const QString &filter) {
    return AnswerOf([&] {
        return Dialogs_.ShowOpen({FileChooserFlags::None, filter, stored, title, stored});
    });
}

bool SettingsDialog::txtTabSize_KeyPress(int characterCode) const {
    return characterCode >= u'0' && characterCode <= u':';
}

void SettingsDialog::txtTabSize_Change() {
    if (TabSizeNumber() > HighestTabSize)
        Window_.SetText(SettingsText::TabSize, QString::number(HighestTabSize));
    if (TabSizeNumber() < LowestTabSize)
        Window_.SetText(SettingsText::TabSize, QString::number(LowestTabSize));
    Window_.SetTabSpinner(ToLong(TabSizeNumber()));
}

void SettingsDialog::spnTabSize_Change(int value) {
    Window_.SetText(SettingsText::TabSize, QString::number(value));
}

void SettingsDialog::spnTabSize_SpinUp() { Window_.FocusTabSize(); }

void SettingsDialog::spnTabSize_SpinDown() { Window_.FocusTabSize(); }

void SettingsDialog::cmdAceptar_Click() {
    StoreSettings();
    Window_.Unload();
}

void SettingsDialog::cmdAplicar_Click() {
    StoreSettings();
    Window_.Hide();
    Effect_.ShowInDocument();
    Window_.ShowAgain();
}

void SettingsDialog::cmdCancelar_Click() { Window_.Unload(); }

void SettingsDialog::cmdAyuda_Click() { Companions_.ShowHelpPage(QStringLiteral("HowTo.htm")); }

ItemAttribute &SettingsDialog::SelectedAttribute() {
    return ItemAttributes_.at(static_cast<std::size_t>(Window_.SelectedItem()));
}

double SettingsDialog::TabSizeNumber() const {
    return LeadingNumber(Window_.Text(SettingsText::TabSize));
}

} // namespace Quillbox
