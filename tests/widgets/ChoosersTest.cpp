// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/FileColumns.h"
#include "widgets/QtDialogs.h"

#include "fakes/Waiting.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

const QString CompilerFilter = QStringLiteral("Archivo FXC.exe|FXC.exe");

/// The choosers that start from something that was chosen before.
class Choosers : public testing::Test {
  protected:
    /// Lets `act` look at the next chooser of that kind, which is then cancelled unless it is
    /// closed.
    template <typename Window, typename Action>
    static void WhenOpen(Action act) {
        QTimer::singleShot(0, [act] {
            auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            act(*window);
            if (window->isVisible())
                window->reject();
        });
    }
    /// Looks at the chooser of a file to open.
    template <typename Action>
    std::optional<QString> Open(const FileChooser &chooser, Action act) {
        WhenOpen<QFileDialog>(act);
        return Questions.ShowOpen(chooser);
    }
    static FileChooser From(const QString &path) {
        return {FileChooserFlags::None, CompilerFilter, path, QStringLiteral("Seleccionar"), path};
    }
    static QString NameIn(const QFileDialog &dialog) {
        return dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
    }
    static void ChooseIt(QFileDialog &dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    }
    static QString FolderOf(const QFileDialog &dialog) { return dialog.directory().absolutePath(); }
    QString PathOf(const QString &name) const { return Folder.filePath(name); }
    QString Write(const QString &name) const {
        QFile file(PathOf(name));
        EXPECT_TRUE(QFileInfo(file).dir().mkpath(QStringLiteral(".")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    QTemporaryDir Folder;
    QtDialogs Questions;
};

TEST_F(Choosers, OfAFileHaveTheTitleTheyAreGiven) {
    Open(From({}), [](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Seleccionar"));
    });
}

TEST_F(Choosers, OfAFileStartInTheFolderOfAFullNameWithItsLastPart) {
    Open(From(Write(QStringLiteral("fenix/FXC.exe"))), [this](QFileDialog &dialog) {
        EXPECT_EQ(FolderOf(dialog), PathOf(QStringLiteral("fenix")));
        EXPECT_EQ(NameIn(dialog), QStringLiteral("FXC.exe"));
    });
}

TEST_F(Choosers, OfAFileStartInTheFolderOfAFileThatIsNotThere) {
    Open(From(PathOf(QStringLiteral("FXC.exe"))), [this](QFileDialog &dialog) {
        EXPECT_EQ(FolderOf(dialog), Folder.path());
        EXPECT_EQ(NameIn(dialog), QStringLiteral("FXC.exe"));
    });
}

TEST_F(Choosers, OfAFileStartWhereAWindowsPathLeads) {
    Write(QStringLiteral("drive_c/fenix/fxc.exe"));
    const QByteArray prefix = qgetenv("WINEPREFIX");
    qputenv("WINEPREFIX", QFile::encodeName(Folder.path()));
    Open(From(QStringLiteral("C:\\Fenix\\FXC.exe")), [this](QFileDialog &dialog) {
        EXPECT_EQ(FolderOf(dialog), PathOf(QStringLiteral("drive_c/fenix")));
        EXPECT_EQ(NameIn(dialog), QStringLiteral("fxc.exe"));
    });
    prefix.isNull() ? qunsetenv("WINEPREFIX") : qputenv("WINEPREFIX", prefix);
}

TEST_F(Choosers, OfAFileStartWhereTheLastChoiceWasWhenTheFolderIsMissing) {
    const QString other = Write(QStringLiteral("otra/fxc.exe"));
    Open(From(other), ChooseIt);
    Open(From(QStringLiteral("Q:\\no\\hay\\FXC.exe")), [this](QFileDialog &dialog) {
        EXPECT_EQ(FolderOf(dialog), PathOf(QStringLiteral("otra")));
        EXPECT_EQ(NameIn(dialog), QStringLiteral("FXC.exe"));
    });
}

TEST_F(Choosers, OfAFileProposeNoNameForAFolder) {
    Open(From(Folder.path()), [this](QFileDialog &dialog) {
        EXPECT_EQ(FolderOf(dialog), Folder.path());
        EXPECT_EQ(NameIn(dialog), QString());
    });
}

TEST_F(Choosers, OfAFileReturnTheOneThatWasChosen) {
    const QString file = Write(QStringLiteral("fxc.exe"));
    EXPECT_EQ(Open(From(file), ChooseIt), file);
}

TEST_F(Choosers, OfAFileNameTheFilterWithoutTheBracketsThatItsCaptionLacks) {
    Open(From({}), [](QFileDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox *>(QStringLiteral("fileTypeCombo"))->currentText(),
                  QStringLiteral("Archivo FXC.exe"));
    });
    Open({FileChooserFlags::None, QStringLiteral("Índice (index.html)|index.html")},
         [](QFileDialog &dialog) {
             EXPECT_EQ(
                 dialog.findChild<QComboBox *>(QStringLiteral("fileTypeCombo"))->currentText(),
                 QStringLiteral("Índice (index.html)"));
         });
}

TEST_F(Choosers, OfAFileListWhatTheFilterNamesInAnyLetterCase) {
    Write(QStringLiteral("fxc.exe"));
    Write(QStringLiteral("otro.exe"));
    Write(QStringLiteral("FXC.exe.txt"));
    Open(From(PathOf(QStringLiteral("x"))), [this](QFileDialog &dialog) {
        const auto *list = dialog.findChild<QListView *>(QStringLiteral("listView"));
        const auto count = [&] { return list->model()->rowCount(list->rootIndex()); };
        ASSERT_TRUE(WaitFor([&] { return count() > 0; }));
        // A file that comes later is listed after all that were there before.
        Write(QStringLiteral("FXC.EXE"));
        ASSERT_TRUE(WaitFor([&] { return count() > 1; }));
        QStringList names;
        for (int row = 0; row < count(); ++row)
            names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
        names.sort();
        EXPECT_EQ(names, QStringList({QStringLiteral("FXC.EXE"), QStringLiteral("fxc.exe")}));
    });
}

TEST_F(Choosers, OfAFileWriteSizesAndDatesAsInSpain) {
    EXPECT_EQ(FileSizeText(812), QStringLiteral("812 bytes"));
    EXPECT_EQ(FileSizeText(12'300), QStringLiteral("12 kB"));
    EXPECT_EQ(FileSizeText(1'532'000), QStringLiteral("1,5 MB"));
    EXPECT_EQ(FileTimeText(QDateTime({2026, 3, 1}, {9, 5})), QStringLiteral("01/03/2026 09:05"));
}

TEST_F(Choosers, OfAFileShowTheSizeTheTypeAndTheDateWhole) {
    QFile file(Write(QStringLiteral("fxc.exe")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(1'532'000));
    ASSERT_TRUE(
        file.setFileTime(QDateTime({2026, 11, 21}, {14, 5}), QFileDevice::FileModificationTime));
    file.close();
    Open(From(PathOf(QStringLiteral("x"))), [](QFileDialog &dialog) {
        auto *list = dialog.findChild<QTreeView *>(QStringLiteral("treeView"));
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 1; }));
        const QStringList texts{QStringLiteral("1,5 MB"), QStringLiteral("Archivo EXE"),
                                QStringLiteral("21/11/2026 14:05")};
        for (int column = 1; column <= texts.size(); ++column) {
            const QModelIndex cell = list->model()->index(0, column, list->rootIndex());
            EXPECT_EQ(cell.data().toString(), texts[column - 1]);
            EXPECT_GE(list->visualRect(cell).width(), list->sizeHintForIndex(cell).width());
        }
    });
}

TEST_F(Choosers, OfAColourStartWithTheGivenOneAndReturnTheChosenOne) {
    WhenOpen<QColorDialog>([](QColorDialog &dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(10, 20, 30));
        dialog.setCurrentColor(QColor(1, 2, 3));
        dialog.accept();
    });
    EXPECT_EQ(Questions.ShowColor(RgbColor(10, 20, 30)), RgbColor(1, 2, 3));
}

TEST_F(Choosers, OfAColourReturnNothingWhenThePersonCancels) {
    WhenOpen<QColorDialog>([](QColorDialog &) {});
    EXPECT_EQ(Questions.ShowColor({}), std::nullopt);
}

TEST_F(Choosers, OfAFontStartWithTheGivenOneAndReturnTheChosenOne) {
    WhenOpen<QFontDialog>([](QFontDialog &dialog) {
        EXPECT_EQ(dialog.currentFont().family(), QStringLiteral("DejaVu Sans Mono"));
        EXPECT_EQ(dialog.currentFont().pointSize(), 13);
        dialog.setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 11));
        dialog.accept();
    });
    const auto chosen = Questions.ShowFont({QStringLiteral("DejaVu Sans Mono"), 13});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->Name, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(chosen->Size, 11);
}

TEST_F(Choosers, OfAFontStartWithTheOneThatStandsForAMissingFamily) {
    WhenOpen<QFontDialog>(
        [](QFontDialog &dialog) { EXPECT_TRUE(QFontInfo(dialog.currentFont()).fixedPitch()); });
    EXPECT_FALSE(Questions.ShowFont({QStringLiteral("No hay tal letra"), 10}));
}

} // namespace
} // namespace Quillbox
