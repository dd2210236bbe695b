// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/SettingsDialog.h"
#include "settings/SettingsWindow.h"

#include <QDialog>
#include <QPointer>

#include <functional>

class QLayout;
class QLineEdit;
class QPushButton;

namespace Quillbox {

class EditorTab;
class EventBoundary;
class FoldersTab;

/// The dialog "Configuración...". It shows the settings as they are when it is made.
class frmSettings final : public QDialog, public SettingsWindow {
    Q_OBJECT
  public:
    using RulesMaker = std::function<SettingsDialog(SettingsWindow &)>;
    frmSettings(const RulesMaker &rulesOver, const EventBoundary &boundary, QWidget *owner);

    /// Shows it modally, again after each "Aplicar", until the person closes it.
    void ShowUntilClosed();

    QString Text(SettingsText box) const override;
    void SetText(SettingsText box, const QString &text) override;
    bool IsChecked(const QString &box) const override;
    void SetChecked(const QString &box, bool checked) override;
    void SetTabSpinner(int value) override;
    void FocusTabSize() override;
    int SelectedItem() const override;
    void SelectItem(int row) override;
    void SelectStyle(int style) override;
    void EnableStyles(bool enabled) override;
    void SetSample(Color color) override;
    void SetFontSample(const QString &caption, const FontChoice &font) override;
    void Hide() override;
    void ShowAgain() override;
    void Unload() override;

  private:
    QLayout *ButtonRow();
    void ConnectTabs();
    QPushButton *AddButton(QLayout &row, const char *name, const char *caption, const char *toolTip,
                           void (SettingsDialog::*click)());
    template <typename Sender, typename Signal, typename... Values>
    void Forward(const Sender *sender, Signal signal, void (SettingsDialog::*handler)(Values...));
    QLineEdit &BoxOf(SettingsText box) const;

    SettingsDialog Rules_;
    const EventBoundary &Boundary_;
    FoldersTab *Folders_;
    EditorTab *Editor_;
    QPointer<QWidget> LastFocus_; ///< has the keyboard when the dialog comes again
    bool ComesAgain_ = false;
};

} // namespace Quillbox
