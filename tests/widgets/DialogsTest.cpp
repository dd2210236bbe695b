// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/QtDialogs.h"
#include "widgets/SpanishInterface.h"

#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

/// Lets `act` work on the next modal window of that kind as soon as it is open.
template <typename Window, typename Action>
void WhenOpen(Action act) {
    QTimer::singleShot(0, [act] {
        auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        act(*window);
    });
}

class TheDialogs : public testing::Test {
  protected:
    MessageAnswer AnswerBy(QMessageBox::StandardButton button, MessageButtons buttons) {
        WhenOpen<QMessageBox>([button](QMessageBox &box) { box.button(button)->click(); });
        return Questions.ShowMessage(
            {QStringLiteral("Texto"), QStringLiteral("Título"), MessageIcon::Question, buttons});
    }
    QString PathOf(const QString &name) const { return Folder.filePath(name); }

    QTemporaryDir Folder;
    QtDialogs Questions;
};

TEST_F(TheDialogs, ReturnsTheAnswerOfTheButton) {
    EXPECT_EQ(AnswerBy(QMessageBox::Yes, MessageButtons::YesNoCancel), MessageAnswer::Yes);
    EXPECT_EQ(AnswerBy(QMessageBox::No, MessageButtons::YesNoCancel), MessageAnswer::No);
    EXPECT_EQ(AnswerBy(QMessageBox::Cancel, MessageButtons::YesNoCancel), MessageAnswer::Cancel);
    EXPECT_EQ(AnswerBy(QMessageBox::No, MessageButtons::YesNo), MessageAnswer::No);
    EXPECT_EQ(AnswerBy(QMessageBox::Ok, MessageButtons::Ok), MessageAnswer::Ok);
}

TEST_F(TheDialogs, TakesEscapeForCancel) {
    WhenOpen<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(Questions.ShowMessage({QStringLiteral("Texto"), QStringLiteral("Título"),
                                     MessageIcon::Question, MessageButtons::YesNoCancel}),
              MessageAnswer::Cancel);
}

TEST_F(TheDialogs, ShowsTextCaptionAndIconAsGiven) {
    WhenOpen<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.text(), QStringLiteral("<b>no es HTML</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Error"));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.reject();
    });
    Questions.ShowMessage({QStringLiteral("<b>no es HTML</b>"), QStringLiteral("Error"),
                           MessageIcon::Critical, MessageButtons::Ok});
}

TEST_F(TheDialogs, NamesItsButtonsInSpanish) {
    const SpanishInterface spanish(QStringLiteral("/no/hay/"));
    WhenOpen<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), QStringLiteral("&Sí"));
        EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), QStringLiteral("Cancelar"));
        box.reject();
    });
    Questions.ShowMessage({QStringLiteral("Texto"), QStringLiteral("Título"), MessageIcon::Question,
                           MessageButtons::YesNoCancel});
}

TEST_F(TheDialogs, OffersTheFilterAndReturnsTheChosenFile) {
    QFile file(PathOf(QStringLiteral("juego.prg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    WhenOpen<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(dialog.nameFilters(), QStringList(QStringLiteral("Programas de Fenix (*.prg)")));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.findChild<QLineEdit *>()->setText(PathOf(QStringLiteral("juego.prg")));
        dialog.findChild<QLineEdit *>()->returnPressed();
    });
    EXPECT_EQ(Questions.ShowOpen({FileChooserFlags::FileMustExist,
                                  QStringLiteral("Programas de Fenix (*.prg)|*.prg")}),
              PathOf(QStringLiteral("juego.prg")));
}

TEST_F(TheDialogs, ReturnsNothingWhenThePersonCancelsAChooser) {
    WhenOpen<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(Questions.ShowOpen({FileChooserFlags::FileMustExist,
                                  QStringLiteral("Programas de Fenix (*.prg)|*.prg")}),
              std::nullopt);
}

TEST_F(TheDialogs, ProposesANameAndAddsTheEndingOfTheFilterToAShortOne) {
    WhenOpen<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>()->text(), QStringLiteral("juego.exe"));
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.findChild<QLineEdit *>()->setText(PathOf(QStringLiteral("otro")));
        dialog.findChild<QLineEdit *>()->returnPressed();
    });
    EXPECT_EQ(Questions.ShowSave({FileChooserFlags::OverwritePrompt,
                                  QStringLiteral("Ejecutables (*.exe)|*.exe"),
                                  QStringLiteral("juego.exe")}),
              PathOf(QStringLiteral("otro.exe")));
}

TEST_F(TheDialogs, ComesBackToTheFolderOfTheLastChoice) {
    WhenOpen<QFileDialog>([this](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(PathOf(QStringLiteral("uno.prg")));
        dialog.findChild<QLineEdit *>()->returnPressed();
    });
    const FileChooser chooser{FileChooserFlags::OverwritePrompt,
                              QStringLiteral("Programas de Fenix (*.prg)|*.prg")};
    ASSERT_TRUE(Questions.ShowSave(chooser));
    QString folder;
    WhenOpen<QFileDialog>([&folder](QFileDialog &dialog) {
        folder = dialog.directory().absolutePath();
        dialog.reject();
    });
    Questions.ShowSave(chooser);
    EXPECT_EQ(folder, Folder.path());
}

TEST_F(TheDialogs, NamesFileTypesInSpanish) {
    WhenOpen<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(dialog.iconProvider()->type(QFileInfo(Folder.path())), QStringLiteral("Carpeta"));
        EXPECT_EQ(dialog.iconProvider()->type(QFileInfo(PathOf(QStringLiteral("a.prg")))),
                  QStringLiteral("Archivo PRG"));
        dialog.reject();
    });
    Questions.ShowOpen({FileChooserFlags::FileMustExist, QStringLiteral("Todo (*)|*")});
}

TEST_F(TheDialogs, AsksForALineAndReplacesWhatAFileCannotHold) {
    WhenOpen<QInputDialog>([](QInputDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Añadir Tarea"));
        EXPECT_EQ(dialog.labelText(), QStringLiteral("Descripción:"));
        auto *box = dialog.findChild<QLineEdit *>();
        box->insert(QStringLiteral("música\n日"));
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(Questions.ShowInput({QStringLiteral("Descripción:"), QStringLiteral("Añadir Tarea")}),
              QStringLiteral("música ?"));
}

TEST_F(TheDialogs, TellsAnEmptyLineFromACancelledOne) {
    const InputBox box{QStringLiteral("Descripción:"), QStringLiteral("Añadir Tarea")};
    WhenOpen<QInputDialog>([](QInputDialog &dialog) { dialog.accept(); });
    EXPECT_EQ(Questions.ShowInput(box), QString());
    WhenOpen<QInputDialog>([](QInputDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(Questions.ShowInput(box), std::nullopt);
}

TEST_F(TheDialogs, OffersThePresetColorAndReturnsTheChosenOne) {
    WhenOpen<QColorDialog>([](QColorDialog &dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(1, 2, 3));
        dialog.setCurrentColor(QColor(255, 128, 0));
        dialog.accept();
    });
    EXPECT_EQ(Questions.ShowColor(RgbColor(1, 2, 3)), RgbColor(255, 128, 0));
}

TEST_F(TheDialogs, ReturnsNoColorWhenThePersonCancels) {
    WhenOpen<QColorDialog>([](QColorDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(Questions.ShowColor(RgbColor(1, 2, 3)), std::nullopt);
}

} // namespace
} // namespace Quillbox
