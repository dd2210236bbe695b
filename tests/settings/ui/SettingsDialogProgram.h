// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/UiProgram.h"
#include "settings/ui/frmSettings.h"

#include <Qsci/qsciscintillabase.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

namespace Quillbox {

inline constexpr const char *PlainPath = "/j/FXC.exe";

/// Gives the keyboard to a dialog that comes and back to the main window when it goes, as the
/// window manager of a desktop does.
class DialogActivator final : public QObject {
  public:
    explicit DialogActivator(QWidget &main)
        : Main_(main) {
        qApp->installEventFilter(this);
    }

  private:
    bool eventFilter(QObject *watched, QEvent *event) override {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog != nullptr && event->type() == QEvent::Show)
            QApplication::setActiveWindow(dialog);
        else if (dialog != nullptr && event->type() == QEvent::Hide)
            QApplication::setActiveWindow(&Main_);
        return false;
    }

    QWidget &Main_;
};

/// Drives frmSettings, which runs a loop of its own until it is closed.
class SettingsDialogProgram : public UiProgram {
  protected:
    using Step = std::function<void(frmSettings &)>;

    /// There are no word files, which the start warns about.
    SettingsDialogProgram() {
        Start();
        Questions.Messages.clear();
        Options().FenixCPath = QString::fromUtf8(PlainPath);
    }

    Settings &Options() { return Program_->Options(); }

    /// Opens the dialog and takes the steps, each as soon as the dialog is there again. What is
    /// still open after the last one is closed. Fails when the dialog does not open.
    void InSettings(const std::vector<Step> &steps) {
        InSettings(steps, *Find<QAction>(QStringLiteral("mnuHerramientas_Configuracion")));
    }
    void InSettings(const std::vector<Step> &steps, QAction &opener) {
        const DialogActivator activator(Main());
        std::size_t next = 0;
        std::function<void()> take = [&] {
            auto *dialog = qobject_cast<frmSettings *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            steps[next](*dialog);
            if (++next < steps.size())
                QTimer::singleShot(0, dialog, take);
            else if (dialog->isVisible())
                dialog->reject();
        };
        QTimer::singleShot(0, take);
        opener.trigger();
        Settle();
        EXPECT_EQ(next, steps.size());
    }

    template <typename Widget>
    static Widget &In(QDialog &dialog, const char *name) {
        return *dialog.findChild<Widget *>(QString::fromUtf8(name));
    }
    static QString TextIn(QDialog &dialog, const char *name) {
        return In<QLineEdit>(dialog, name).text();
    }
    static void Enter(QDialog &dialog, const char *name, const QString &text) {
        In<QLineEdit>(dialog, name).setText(text);
    }
    static void Click(QDialog &dialog, const char *name) { In<QPushButton>(dialog, name).click(); }
    static void Apply(frmSettings &dialog) { Click(dialog, "cmdAplicar"); }
    static void Accept(frmSettings &dialog) { Click(dialog, "cmdAceptar"); }
    static void ShowTab(QDialog &dialog, int tab) {
        dialog.findChild<QTabWidget *>()->setCurrentIndex(tab);
    }
    static QColor SampleIn(QDialog &dialog) {
        return In<QWidget>(dialog, "ptbMuestra").palette().color(QPalette::Window);
    }
    /// The tab-size box with the keyboard and all of its text selected.
    static QLineEdit &TabSizeIn(QDialog &dialog) {
        ShowTab(dialog, 1);
        auto &box = In<QLineEdit>(dialog, "txtTabSize");
        box.setFocus();
        box.selectAll();
        return box;
    }
    /// Chooses a colour for a row of lstItems.
    void ChooseColor(QDialog &dialog, int row, Color color) {
        In<QListWidget>(dialog, "lstItems").setCurrentRow(row);
        Questions.Colors = {color};
        Click(dialog, "cmdCambiarColor");
    }
    void OpenDocument(const QString &name, const QByteArray &text = "Cls\r\n") {
        Write(name, text);
        Open(name);
    }
    /// What the editor shows behind its text: 0x00BBGGRR.
    Color BackgroundOf(int position) {
        const auto *editor = qobject_cast<QsciScintillaBase *>(EditorOf(position));
        return {static_cast<int>(editor->SendScintilla(QsciScintillaBase::SCI_STYLEGETBACK,
                                                       QsciScintillaBase::STYLE_DEFAULT))};
    }
};

inline constexpr Color Blue = RgbColor(10, 20, 240);
inline constexpr Color Green = RgbColor(10, 220, 30);
inline constexpr int Background = 6;

} // namespace Quillbox
