// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

namespace Quillbox {
namespace {

const QString NewProjectTitle = QStringLiteral("^Nuevo proyecto$");
const QString InformationTitle = QStringLiteral("^Información del Proyecto$");
const QString ToDoTitle = QStringLiteral("^Tareas Pendientes$");
const QString InputTitle = QStringLiteral("^Añadir Tarea$");
/// The question whether to save a changed project, and the one before a task goes.
const QString NoticeOfProject = QStringLiteral("^Aviso$");

/// The main window while this project is open.
QString TitleOf(const QString &project) {
    return QStringLiteral("^Quillbox v1\\.0 - <Proyecto: %1>").arg(project);
}
const QString GameTitle = TitleOf(QStringLiteral("El cañón"));

// Letters of the items in the menu Archivo.
const QString NewItem = QStringLiteral("u");
const QString OpenItem = QStringLiteral("b");
const QString SaveItem = QStringLiteral("p");
const QString CloseItem = QStringLiteral("r");

// Answers to a question.
const QString Yes = QStringLiteral("alt+s");
const QString No = QStringLiteral("alt+n");
const QString Cancel = QStringLiteral("Escape");

class Projects : public ProgramTest {
  protected:
    bool Choose(const QString &mainTitle, const QString &item) {
        if (!Person_.PressIn(mainTitle, {QStringLiteral("alt+a")}) || !Person_.WaitForMenu())
            return false;
        Person_.Press({item});
        return true;
    }
    bool OpenProject(const QString &path, const QString &title = GameTitle) {
        return Choose(MainTitle, OpenItem) && Person_.ChooseFile(OpenTitle, path) &&
               Person_.WaitForWindow(title) != 0;
    }
    /// Clicks the tool button, whose place is this many pixels from the window's left edge.
    bool Show(int button, const QString &title) {
        return Person_.PressIn(GameTitle, {}) && Person_.ClickIn(GameTitle, QPoint(button, 39)) &&
               Person_.PressIn(title, {});
    }
    bool ShowInformation() { return Show(510, InformationTitle); }
    bool ShowToDo() { return Show(543, ToDoTitle); }
    bool CloseWindow(const QString &title) {
        return Person_.PressIn(title, {QStringLiteral("Escape")}) && Person_.WaitForNoWindow(title);
    }
    bool AddTask(const QString &description) {
        if (!Person_.PressIn(ToDoTitle, {QStringLiteral("alt+a")}) ||
            !Person_.PressIn(InputTitle, {}))
            return false;
        Person_.Paste(description);
        Person_.Press({QStringLiteral("Return")});
        return Person_.WaitForNoWindow(InputTitle);
    }
    bool Answer(const QString &key) {
        return Person_.PressIn(NoticeOfProject, {key}) && Person_.WaitForNoWindow(NoticeOfProject);
    }
    bool IsClosed() { return Person_.WaitForWindow(MainTitle) != 0; }

    /// A project of one source that has one task.
    QString WriteGame(const QByteArray &tasks = "una|0") {
        const QString source = Write(QStringLiteral("m.prg"), "Cls\r\n");
        return Write(QStringLiteral("juego.fp"), BytesOfGame(source, {}, tasks));
    }
    static QByteArray BytesOfGame(const QString &source, const QByteArray &others,
                                  const QByteArray &tasks) {
        return "[Proyecto]\r\nTitulo=El ca\xf1\xf3n\r\nAutor=Eva\r\nMainSource=" +
               source.toLatin1() + "\r\nOtrosSource=" + others + "\r\nToDoList=" + tasks + "\r\n";
    }
    /// The game is open and has a task more than its file.
    bool OpenChanged(const QString &game) {
        return Start() && OpenProject(game) && ShowToDo() && AddTask(QStringLiteral("otra")) &&
               CloseWindow(ToDoTitle);
    }
};

} // namespace

TEST_F(Projects, AreMadeFilledSavedClosedAndOpenedAgain) {
    const QString source = Write(QStringLiteral("m.prg"), "Cls\r\n");
    const QString other = Write(QStringLiteral("c.bb"), "Cls\r\n");
    const QString game = PersonsFile(QStringLiteral("juego.fp"));
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Choose(MainTitle, NewItem));
    ASSERT_TRUE(Person_.PressIn(NewProjectTitle, {}));
    Person_.Paste(QStringLiteral("El cañón"));
    Person_.Press({QStringLiteral("Tab")});
    Person_.Paste(QStringLiteral("Eva"));
    Person_.Press({QStringLiteral("Tab")});
    Person_.Paste(source);
    Person_.Press({QStringLiteral("Tab"), QStringLiteral("Tab")});
    Person_.Paste(game);
    Person_.Press({QStringLiteral("Return")});
    ASSERT_TRUE(Person_.WaitForWindow(GameTitle));
    EXPECT_EQ(BytesOf(game), BytesOfGame(source, {}, {}));

    ASSERT_TRUE(ShowInformation());
    Person_.Press({QStringLiteral("alt+d")});
    ASSERT_TRUE(Person_.ChooseFile(OpenTitle, other));
    ASSERT_TRUE(Person_.WaitForNoWindow(OpenTitle));
    ASSERT_TRUE(CloseWindow(InformationTitle));
    ASSERT_TRUE(ShowToDo());
    for (const char *task : {"Dibujar", "Sonar", "Jugar"})
        ASSERT_TRUE(AddTask(QLatin1String(task)));
    ASSERT_TRUE(Person_.PressIn(
        ToDoTitle, {QStringLiteral("alt+t"), QStringLiteral("Up"), QStringLiteral("space")}));
    ASSERT_TRUE(CloseWindow(ToDoTitle));
    ASSERT_TRUE(Choose(GameTitle, SaveItem));
    const QByteArray saved = BytesOfGame(source, other.toLatin1(), "Dibujar|0|Sonar|1|Jugar|0");
    EXPECT_EQ(BytesOnceThey(saved, game), saved);

    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(IsClosed());
    ASSERT_TRUE(OpenProject(game));
    ASSERT_TRUE(ShowToDo()); // the done task is the current one
    Person_.Press({QStringLiteral("space")});
    ASSERT_TRUE(CloseWindow(ToDoTitle));
    ASSERT_TRUE(Choose(GameTitle, SaveItem));
    const QByteArray unmarked = BytesOfGame(source, other.toLatin1(), "Dibujar|0|Sonar|0|Jugar|0");
    EXPECT_EQ(BytesOnceThey(unmarked, game), unmarked);
    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(IsClosed());
    EXPECT_TRUE(Leaves());
}

TEST_F(Projects, AnsweredCancelStayOpenAndAnsweredYesAreSaved) {
    const QString game = WriteGame();
    const QByteArray before = BytesOf(game);
    ASSERT_TRUE(OpenChanged(game));
    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(Answer(Cancel));
    EXPECT_TRUE(Person_.IsWindowThere(GameTitle));
    EXPECT_EQ(BytesOf(game), before);

    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(Answer(Yes));
    ASSERT_TRUE(IsClosed());
    EXPECT_EQ(BytesOf(game), QByteArray(before).replace("una|0", "una|0|otra|0"));
    EXPECT_TRUE(Leaves());
}

TEST_F(Projects, AnsweredNoAreNotSavedAndLetTheNextOneAsk) {
    const QString game = WriteGame();
    const QByteArray before = BytesOf(game);
    ASSERT_TRUE(OpenChanged(game));
    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(Answer(No));
    ASSERT_TRUE(IsClosed());

    ASSERT_TRUE(OpenProject(game));
    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(Answer(No));
    ASSERT_TRUE(IsClosed());
    EXPECT_EQ(BytesOf(game), before);
    EXPECT_TRUE(Leaves());
}

TEST_F(Projects, KeepTheProgramOpenWhenTheirQuestionIsCancelled) {
    const QString game = WriteGame();
    const QByteArray before = BytesOf(game);
    ASSERT_TRUE(OpenChanged(game));
    ASSERT_TRUE(Person_.PressIn(GameTitle, {QStringLiteral("ctrl+q")}));
    ASSERT_TRUE(Answer(Cancel));
    EXPECT_TRUE(Run_.IsRunning());
    ASSERT_TRUE(Person_.PressIn(GameTitle, {QStringLiteral("ctrl+q")}));
    ASSERT_TRUE(Answer(No));
    ASSERT_TRUE(Run_.WaitForEnd());
    EXPECT_FALSE(Run_.HasCrashed());
    EXPECT_EQ(BytesOf(game), before);
}

TEST_F(Projects, AskBeforeATaskGoes) {
    const QString game = WriteGame("una|0|dos|1");
    const QByteArray before = BytesOf(game);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenProject(game));
    ASSERT_TRUE(ShowToDo());
    Person_.Press({QStringLiteral("Delete")});
    ASSERT_TRUE(Answer(No));
    ASSERT_TRUE(Person_.PressIn(ToDoTitle, {QStringLiteral("alt+b")}));
    ASSERT_TRUE(Answer(Yes));
    ASSERT_TRUE(CloseWindow(ToDoTitle));
    ASSERT_TRUE(Choose(GameTitle, SaveItem));
    const QByteArray saved = QByteArray(before).replace("una|0|dos|1", "una|0");
    EXPECT_EQ(BytesOnceThey(saved, game), saved);
    ASSERT_TRUE(Choose(GameTitle, CloseItem));
    ASSERT_TRUE(IsClosed());
    EXPECT_TRUE(Leaves());
}

TEST_F(Projects, OfTheExamplesOpenTheirMainSource) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(
        OpenProject(ProgramFile(QStringLiteral("examples/proyecto_meteoritos/Meteoritos.fp")),
                    QStringLiteral("<Proyecto: Lluvia de meteoritos> - "
                                   "\\[examples/proyecto_meteoritos/Main\\.prg\\]$")));
    ASSERT_TRUE(Choose(TitleOf(QStringLiteral("Lluvia de meteoritos")), CloseItem));
    ASSERT_TRUE(OpenProject(ProgramFile(QStringLiteral("examples/proyecto_preguntas/Preguntas.fp")),
                            QStringLiteral("<Proyecto: Preguntas y respuestas> - "
                                           "\\[examples/proyecto_preguntas/Main\\.prg\\]$")));
    ASSERT_TRUE(Choose(TitleOf(QStringLiteral("Preguntas y respuestas")), CloseItem));
    ASSERT_TRUE(IsClosed());
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
