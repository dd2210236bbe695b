// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Version.h"
#include "fakes/UiProgram.h"
#include "fakes/Waiting.h"
#include "project/ui/EntryList.h"
#include "project/ui/frmNewProject.h"
#include "state/Project.h"

#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTimer>
#include <QToolBar>

namespace Quillbox {
namespace {

const QByteArray ProjectBytes = "[Proyecto]\r\nTitulo=Juego\r\nAutor=Eva\r\nMainSource=m.prg\r\n"
                                "OtrosSource=a.bb|b.bb\r\nToDoList=una|1|otra|0\r\n";

const QString Information = QStringLiteral("Información del Proyecto");
const QString ToDo = QStringLiteral("Tareas Pendientes");

class ProjectWindows : public UiProgram {
  protected:
    ProjectWindows() { Start(); }

    void OpenProject(const QByteArray &bytes = ProjectBytes) {
        Questions.Choices.push_back(Write(QStringLiteral("juego.fp"), bytes));
        Trigger(QStringLiteral("mnuArchivo_AbrirProyecto"));
        Questions.Messages.clear();
    }
    void ClickToolButton(const QString &tooltip) {
        Find<QAction>(QStringLiteral("tbEstandar_") + tooltip)->trigger();
        Settle();
    }
    /// The window that the tool button shows.
    QDialog &Show(const QString &tooltip) {
        ClickToolButton(tooltip);
        return *Window(tooltip == ToDo ? "frmToDoList" : "frmProjectInfo");
    }
    QDialog *Window(const char *name) { return Find<QDialog>(QLatin1String(name)); }
    template <typename Widget>
    static Widget &In(QDialog &dialog, const char *name) {
        return *dialog.findChild<Widget *>(QString::fromUtf8(name));
    }
    static QString TextIn(QDialog &dialog, const char *name) {
        return In<QLineEdit>(dialog, name).text();
    }
    static void Click(QDialog &dialog, const char *name) {
        In<QPushButton>(dialog, name).click();
        Settle();
    }
    static void Press(QWidget &widget, Qt::Key key) {
        QTest::keyClick(&widget, key);
        Settle();
    }
    Project &Opened() { return Program_->OpenProject(); }

    /// Lets `act` work on frmNewProject, which the menu item shows until it is closed.
    template <typename Action>
    void InNewProject(Action act) {
        QTimer::singleShot(0, [act] {
            auto *dialog = qobject_cast<frmNewProject *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            dialog->reject();
        });
        Trigger(QStringLiteral("mnuArchivo_NuevoProyecto"));
    }
};

/// The letters that Alt and a key of the keyboard reach.
QStringList MnemonicsOf(const QDialog &dialog) {
    QStringList letters;
    const auto take = [&letters](const QString &text) {
        const qsizetype mark = text.indexOf(u'&');
        if (mark >= 0)
            letters.append(text.mid(mark + 1, 1).toUpper());
    };
    for (const auto *label : dialog.findChildren<QLabel *>())
        take(label->text());
    for (const auto *button : dialog.findChildren<QPushButton *>())
        take(button->text());
    return letters;
}

/// The named widgets in the order in which Tab reaches them.
QStringList TabOrderOf(const QDialog &dialog) {
    QStringList names;
    const QWidget *widget = dialog.nextInFocusChain();
    for (; widget != &dialog; widget = widget->nextInFocusChain())
        if ((widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().startsWith(u"qt_"))
            names.append(widget->objectName());
    return names;
}

QPoint CheckMarkOf(EntryList &list, int row) {
    return list.visualItemRect(list.item(row)).topLeft() + QPoint(10, 10);
}

QPoint TextOf(EntryList &list, int row) {
    return list.visualItemRect(list.item(row)).topLeft() + QPoint(60, 10);
}

Qt::CheckState MarkOf(EntryList &list, int row) { return list.item(row)->checkState(); }

void DoubleClick(EntryList &list, QPoint place) {
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    DoWhatIsDue();
}

TEST_F(ProjectWindows, EnableTheMenuItemsOfAProjectWhileOneIsOpen) {
    const char *const items[] = {"mnuArchivo_GuardarProyecto", "mnuArchivo_GuardarProyectoComo",
                                 "mnuArchivo_CerrarProyecto"};
    for (const char *item : items)
        EXPECT_FALSE(Find<QAction>(QLatin1String(item))->isEnabled()) << item;
    OpenProject();
    for (const char *item : items)
        EXPECT_TRUE(Find<QAction>(QLatin1String(item))->isEnabled()) << item;
    Trigger(QStringLiteral("mnuArchivo_CerrarProyecto"));
    for (const char *item : items)
        EXPECT_FALSE(Find<QAction>(QLatin1String(item))->isEnabled()) << item;
}

TEST_F(ProjectWindows, TitleTheMainWindowBesideTheActiveDocument) {
    const QString source = Write(QStringLiteral("m.prg"), "Cls\r\n");
    OpenProject("[Proyecto]\r\nTitulo=Juego\r\nMainSource=" + QFile::encodeName(source) + "\r\n");

    EXPECT_EQ(Main().windowTitle(),
              QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto: Juego> - [") + source +
                  u']');
}

TEST_F(ProjectWindows, DoNotOpenWithoutAProject) {
    ClickToolButton(Information);
    ClickToolButton(ToDo);

    EXPECT_EQ(Window("frmProjectInfo"), nullptr);
    EXPECT_EQ(Window("frmToDoList"), nullptr);
}

TEST_F(ProjectWindows, StandOpenBesideOneAnotherOverTheMainWindow) {
    OpenProject();
    for (QDialog *dialog : {&Show(Information), &Show(ToDo)}) {
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        EXPECT_EQ(dialog->parentWidget(), &Main());
    }
}

TEST_F(ProjectWindows, ComeForwardAsTheyAreWhenTheyAreOpenAlready) {
    OpenProject();
    QDialog &first = Show(Information);
    In<QLineEdit>(first, "txtTitle").setText(QStringLiteral("A medias"));

    EXPECT_EQ(&Show(Information), &first);
    EXPECT_EQ(TextIn(first, "txtTitle"), QStringLiteral("A medias"));
    EXPECT_EQ(Main().findChildren<QDialog *>(QStringLiteral("frmProjectInfo")).size(), 1);
}

TEST_F(ProjectWindows, HaveAMnemonicForEveryFieldAndButtonAndNoneTwice) {
    OpenProject();
    for (QDialog *dialog : {&Show(Information), &Show(ToDo)}) {
        const QStringList letters = MnemonicsOf(*dialog);
        EXPECT_EQ(QSet<QString>(letters.begin(), letters.end()).size(), letters.size())
            << qPrintable(letters.join(u' '));
    }
    EXPECT_EQ(MnemonicsOf(*Window("frmProjectInfo")).size(), 8);
    EXPECT_EQ(MnemonicsOf(*Window("frmToDoList")).size(), 4);
    InNewProject([](QDialog &dialog) {
        const QStringList letters = MnemonicsOf(dialog);
        EXPECT_EQ(QSet<QString>(letters.begin(), letters.end()).size(), 9);
    });
}

TEST_F(ProjectWindows, AreWalkedFromTopToBottomWithTab) {
    OpenProject();
    EXPECT_EQ(TabOrderOf(Show(Information)),
              QStringList({"txtProjectPath", "txtTitle", "txtAuthor", "txtMainFile", "lstFiles",
                           "cmdAñadir", "cmdBorrar", "cmdCerrar"}));
    EXPECT_EQ(TabOrderOf(Show(ToDo)),
              QStringList({"lstToDo", "cmdAñadir", "cmdBorrar", "cmdCerrar"}));
    Trigger(QStringLiteral("mnuArchivo_CerrarProyecto"));
    InNewProject([](QDialog &dialog) {
        EXPECT_EQ(TabOrderOf(dialog),
                  QStringList({"txtTitle", "txtAuthor", "txtMainSource", "cmdBrowse", "txtTarget",
                               "cmdBrowseTarget", "cmdScaffolder", "cmdAceptar", "cmdCancelar"}));
    });
}

TEST_F(ProjectWindows, ShowPathsOfAnyLengthWithoutGrowing) {
    const QByteArray path = "C:\\" + QByteArray("carpeta con un nombre largo\\").repeated(30);
    OpenProject("[Proyecto]\r\nTitulo=" + QByteArray("título muy largo ").repeated(60) +
                "\r\nMainSource=" + path + "m.prg\r\nOtrosSource=" + path +
                "a.bb\r\nToDoList=" + QByteArray("una tarea muy larga ").repeated(60) + "|0\r\n");

    for (QDialog *dialog : {&Show(Information), &Show(ToDo)}) {
        EXPECT_LE(dialog->width(), 700);
        EXPECT_LE(dialog->minimumSizeHint().width(), 600);
    }
    EXPECT_EQ(In<EntryList>(*Window("frmProjectInfo"), "lstFiles").item(1)->toolTip(),
              QString::fromLatin1(path) + QStringLiteral("a.bb"));
}

// frmNewProject

TEST_F(ProjectWindows, MakeANewProjectAndOpenIt) {
    const QString target = PathOf(QStringLiteral("nuevo.fp"));
    const QString source = Write(QStringLiteral("m.prg"), "Cls\r\n");
    InNewProject([&](QDialog &dialog) {
        EXPECT_TRUE(dialog.isModal());
        In<QLineEdit>(dialog, "txtTitle").setText(QStringLiteral("El cañón"));
        QTest::keyClicks(&In<QLineEdit>(dialog, "txtAuthor"), QStringLiteral("Eva"));
        Questions.Choices = {source, target};
        Click(dialog, "cmdBrowse");
        Click(dialog, "cmdBrowseTarget");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });

    EXPECT_EQ(Read(QStringLiteral("nuevo.fp")),
              "[Proyecto]\r\nTitulo=El ca\xf1\xf3n\r\nAutor=Eva\r\nMainSource=" +
                  QFile::encodeName(source) + "\r\nOtrosSource=\r\nToDoList=\r\n");
    EXPECT_TRUE(Main().windowTitle().startsWith(
        QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto: El cañón>")));
    EXPECT_EQ(Registry().DocumentCount, 1);
}

TEST_F(ProjectWindows, StayWithANewProjectWhoseFieldsAreNotAllFilled) {
    Questions.Messages.clear();
    InNewProject([&](QDialog &dialog) {
        In<QLineEdit>(dialog, "txtTitle").setText(QStringLiteral("Juego"));
        Click(dialog, "cmdAceptar");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("txtAuthor"));
        EXPECT_EQ(Questions.Messages.size(), 1U);
    });
    EXPECT_EQ(Opened().File, QString());
}

TEST_F(ProjectWindows, LeaveANewProjectWithCancelAndWithEscape) {
    for (const bool escape : {false, true})
        InNewProject([escape](QDialog &dialog) {
            if (escape)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                Click(dialog, "cmdCancelar");
            EXPECT_FALSE(dialog.isVisible());
        });
    EXPECT_EQ(Opened().File, QString());
}

TEST_F(ProjectWindows, KeepTheChosenPathsOfANewProjectWhenAChooserIsCancelled) {
    InNewProject([&](QDialog &dialog) {
        In<QLineEdit>(dialog, "txtMainSource").setText(QStringLiteral("m.prg"));
        In<QLineEdit>(dialog, "txtTarget").setText(QStringLiteral("j.fp"));
        Click(dialog, "cmdBrowse");
        Click(dialog, "cmdBrowseTarget");
        EXPECT_EQ(TextIn(dialog, "txtMainSource"), QStringLiteral("m.prg"));
        EXPECT_EQ(TextIn(dialog, "txtTarget"), QStringLiteral("j.fp"));
    });
}

TEST_F(ProjectWindows, WarnAboutAMissingGeneratorAndStayOpen) {
    Questions.Messages.clear();
    InNewProject([&](QDialog &dialog) {
        Click(dialog, "cmdScaffolder");
        EXPECT_TRUE(dialog.isVisible());
    });
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, QStringLiteral("El archivo ") +
                                              PathOf("Scaffolder/Scaffolder.exe") +
                                              QStringLiteral(" no existe."));
    EXPECT_TRUE(Log.CallsOf({"programs."}).empty());
}

TEST_F(ProjectWindows, StartTheGenerator) {
    QDir(Folder.path()).mkpath("Scaffolder");
    const QString generator = Write("Scaffolder/Scaffolder.exe", "MZ");
    InNewProject([](QDialog &dialog) { Click(dialog, "cmdScaffolder"); });
    EXPECT_EQ(Log.CallsOf({"programs."}),
              std::vector{"programs.Start " + generator.toStdString() + " Normal"});
}

TEST_F(ProjectWindows, ShowAtOnceWhatAFileCannotHold) {
    InNewProject([](QDialog &dialog) {
        auto &title = In<QLineEdit>(dialog, "txtTitle");
        QApplication::clipboard()->setText(QStringLiteral("uno\r\ndos\n日€ñ"));
        title.setFocus();
        title.paste();
        EXPECT_EQ(title.text(), QStringLiteral("uno dos ?€ñ"));
    });
}

// frmProjectInfo

TEST_F(ProjectWindows, ShowTheInformationOfTheProject) {
    OpenProject();
    QDialog &dialog = Show(Information);

    EXPECT_EQ(TextIn(dialog, "txtProjectPath"), PathOf(QStringLiteral("juego.fp")));
    EXPECT_EQ(TextIn(dialog, "txtTitle"), QStringLiteral("Juego"));
    EXPECT_EQ(TextIn(dialog, "txtAuthor"), QStringLiteral("Eva"));
    EXPECT_EQ(TextIn(dialog, "txtMainFile"), QStringLiteral("m.prg"));
    EXPECT_EQ(In<EntryList>(dialog, "lstFiles").Texts(), QStringList({"m.prg", "a.bb", "b.bb"}));
    EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("txtTitle"));
}

TEST_F(ProjectWindows, LetNobodyTypeIntoTheFileAndTheMainSource) {
    OpenProject();
    QDialog &dialog = Show(Information);

    EXPECT_TRUE(In<QLineEdit>(dialog, "txtProjectPath").isReadOnly());
    EXPECT_TRUE(In<QLineEdit>(dialog, "txtMainFile").isReadOnly());
}

TEST_F(ProjectWindows, TakeTheTitleOverHoweverTheInformationIsClosed) {
    OpenProject();
    int number = 0;
    const std::function<void(QDialog &)> closings[] = {
        [](QDialog &dialog) { Click(dialog, "cmdCerrar"); },
        [](QDialog &dialog) { Press(dialog, Qt::Key_Escape); },
        [](QDialog &dialog) { dialog.close(); }};
    for (const auto &closing : closings) {
        Opened().Modified = false;
        const QString title = QStringLiteral("Título %1").arg(++number);
        QDialog &dialog = Show(Information);
        In<QLineEdit>(dialog, "txtTitle").setText(title);
        closing(dialog);
        EXPECT_EQ(Opened().Title, title);
        EXPECT_TRUE(Opened().Modified);
        DoWhatIsDue();
    }
}

TEST_F(ProjectWindows, ChangeNothingWhenTheInformationIsOnlyLookedAt) {
    OpenProject();
    Press(Show(Information), Qt::Key_Escape);

    EXPECT_EQ(Opened().OtherSources, QStringLiteral("a.bb|b.bb"));
    EXPECT_FALSE(Opened().Modified);
}

TEST_F(ProjectWindows, AddAndRemoveFiles) {
    OpenProject();
    QDialog &dialog = Show(Information);
    auto &files = In<EntryList>(dialog, "lstFiles");
    Questions.Choices = {QStringLiteral("/j/c.bb")};
    Click(dialog, "cmdAñadir");
    EXPECT_EQ(files.Selected(), 3);
    files.setCurrentRow(1);
    Press(files, Qt::Key_Delete);
    Press(dialog, Qt::Key_Escape);

    EXPECT_EQ(Opened().OtherSources, QStringLiteral("b.bb|/j/c.bb"));
    EXPECT_TRUE(Opened().Modified);
}

TEST_F(ProjectWindows, KeepTheMainSourceAmongTheFiles) {
    OpenProject();
    QDialog &dialog = Show(Information);
    In<EntryList>(dialog, "lstFiles").setCurrentRow(0);
    Click(dialog, "cmdBorrar");

    EXPECT_EQ(In<EntryList>(dialog, "lstFiles").count(), 3);
    EXPECT_EQ(Questions.Messages.size(), 1U);
}

TEST_F(ProjectWindows, OpenAFileByDoubleClickAndByReturn) {
    const QString a = Write(QStringLiteral("a.bb"), "a\r\n");
    const QString b = Write(QStringLiteral("b.bb"), "b\r\n");
    OpenProject("[Proyecto]\r\nOtrosSource=" + QFile::encodeName(a) + '|' + QFile::encodeName(b) +
                "\r\n");
    QDialog &dialog = Show(Information);
    auto &files = In<EntryList>(dialog, "lstFiles");

    DoubleClick(files, TextOf(files, 1));
    EXPECT_EQ(Registry().DocumentCount, 1);
    files.setCurrentRow(2);
    Press(files, Qt::Key_Return);

    EXPECT_EQ(Registry().DocumentCount, 2);
    EXPECT_TRUE(dialog.isVisible());
}

// frmToDoList

TEST_F(ProjectWindows, ShowTheTasksWithTheirMarks) {
    OpenProject();
    auto &tasks = In<EntryList>(Show(ToDo), "lstToDo");

    EXPECT_EQ(tasks.Texts(), QStringList({"una", "otra"}));
    EXPECT_EQ(MarkOf(tasks, 0), Qt::Checked);
    EXPECT_EQ(MarkOf(tasks, 1), Qt::Unchecked);
    EXPECT_EQ(tasks.Selected(), 0);
}

TEST_F(ProjectWindows, AddAMarkedTaskAndRemoveAnother) {
    OpenProject();
    QDialog &dialog = Show(ToDo);
    auto &tasks = In<EntryList>(dialog, "lstToDo");
    Questions.Inputs = {QStringLiteral("tercera")};
    Click(dialog, "cmdAñadir");
    EXPECT_EQ(tasks.Selected(), 2);
    Press(tasks, Qt::Key_Space);
    tasks.setCurrentRow(0);
    Questions.Answers = {MessageAnswer::Yes};
    Press(tasks, Qt::Key_Delete);
    Press(dialog, Qt::Key_Escape);

    EXPECT_EQ(Opened().ToDoList, QStringLiteral("otra|0|tercera|1"));
    EXPECT_TRUE(Opened().Modified);
}

TEST_F(ProjectWindows, ToggleAMarkWithSpaceReturnClickAndDoubleClick) {
    OpenProject();
    auto &tasks = In<EntryList>(Show(ToDo), "lstToDo");
    tasks.setCurrentRow(1);

    Press(tasks, Qt::Key_Space);
    EXPECT_EQ(MarkOf(tasks, 1), Qt::Checked);
    Press(tasks, Qt::Key_Return);
    EXPECT_EQ(MarkOf(tasks, 1), Qt::Unchecked);
    QTest::mouseClick(tasks.viewport(), Qt::LeftButton, {}, CheckMarkOf(tasks, 1));
    EXPECT_EQ(MarkOf(tasks, 1), Qt::Checked);
    DoubleClick(tasks, TextOf(tasks, 1));
    EXPECT_EQ(MarkOf(tasks, 1), Qt::Unchecked);
}

TEST_F(ProjectWindows, ToggleAMarkTwiceWithADoubleClickOnIt) {
    OpenProject();
    auto &tasks = In<EntryList>(Show(ToDo), "lstToDo");

    DoubleClick(tasks, CheckMarkOf(tasks, 1));

    EXPECT_EQ(MarkOf(tasks, 1), Qt::Unchecked);
}

TEST_F(ProjectWindows, DoNotAskWhetherToSaveAMark) {
    OpenProject();
    QDialog &dialog = Show(ToDo);
    Press(In<EntryList>(dialog, "lstToDo"), Qt::Key_Space);
    Press(dialog, Qt::Key_Escape);
    EXPECT_EQ(Opened().ToDoList, QStringLiteral("una|0|otra|0"));

    Trigger(QStringLiteral("mnuArchivo_CerrarProyecto"));

    EXPECT_TRUE(Questions.Messages.empty());
    EXPECT_EQ(Read(QStringLiteral("juego.fp")), ProjectBytes);
}

TEST_F(ProjectWindows, EndWithTheMainWindowWhileTheyAreOpen) {
    OpenProject();
    Show(Information);
    Show(ToDo);

    Main().close();
    Program_.reset();

    EXPECT_EQ(Read(QStringLiteral("juego.fp")), ProjectBytes);
}

TEST_F(ProjectWindows, LetAClosedMainWindowAskAboutTheProject) {
    OpenProject();
    Opened().Modified = true;
    Questions.Answers = {MessageAnswer::Cancel};

    EXPECT_FALSE(Main().close());

    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Main().isVisible());
}

} // namespace
} // namespace Quillbox
