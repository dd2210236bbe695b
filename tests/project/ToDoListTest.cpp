// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ToDoList.h"

#include "project/ProjectProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheToDoList : public ProjectProgram {
  protected:
    ToDoList Rules{Opened, Questions};
};

TEST_F(TheToDoList, ShowsTheTasksWithTheirMarks) {
    Opened.ToDoList = "una|1|otra|0";

    EXPECT_THAT(Rules.Form_Load().Tasks, ElementsAre(Task{"una", true}, Task{"otra", false}));
}

TEST_F(TheToDoList, MakesTheLastDoneTaskTheCurrentOne) {
    Opened.ToDoList = "a|1|b|1|c|0";

    EXPECT_EQ(Rules.Form_Load().Current, 1);
}

TEST_F(TheToDoList, MakesTheFirstTaskTheCurrentOneWhenNoneIsDone) {
    Opened.ToDoList = "a|0|b|0";

    EXPECT_EQ(Rules.Form_Load().Current, 0);
}

TEST_F(TheToDoList, OfNoTasksIsEmptyAndIsStoredEmpty) {
    const ToDoEntries entries = Rules.Form_Load();
    Rules.Form_Unload(entries.Tasks);

    EXPECT_THAT(entries.Tasks, IsEmpty());
    EXPECT_EQ(entries.Current, std::nullopt);
    EXPECT_EQ(Opened.ToDoList, "");
}

TEST_F(TheToDoList, DoesNotCountAChangedMarkAsAModification) {
    Opened.ToDoList = "una|1|otra|0";

    Rules.Form_Unload({{"una", false}, {"otra", true}});

    EXPECT_EQ(Opened.ToDoList, "una|0|otra|1");
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheToDoList, AsksForTheDescriptionOfANewTask) {
    Questions.Inputs = {"Dibujar la nave"};

    EXPECT_EQ(Rules.cmdAñadir_Click(), "Dibujar la nave");

    ASSERT_EQ(Questions.InputBoxes.size(), 1U);
    EXPECT_EQ(Questions.InputBoxes[0].Prompt, "Introduce la descripción de la tarea:");
    EXPECT_EQ(Questions.InputBoxes[0].Title, "Añadir Tarea");
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(TheToDoList, AddsNothingForAnEmptyOrCancelledAnswer) {
    Questions.Inputs = {"", std::nullopt};

    EXPECT_EQ(Rules.cmdAñadir_Click(), std::nullopt);
    EXPECT_EQ(Rules.cmdAñadir_Click(), std::nullopt);

    EXPECT_THAT(Questions.Messages, IsEmpty());
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheToDoList, RefusesASeparatorInADescription) {
    Questions.Inputs = {"una|1"};

    EXPECT_EQ(Rules.cmdAñadir_Click(), std::nullopt);

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, "Has introducido un carácter no válido: '|'");
    EXPECT_EQ(Questions.Messages[0].Caption, "Error");
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheToDoList, AsksBeforeATaskIsRemoved) {
    Questions.Answers = {MessageAnswer::Yes};

    EXPECT_TRUE(Rules.cmdBorrar_Click(0));

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, "¿Estás seguro?");
    EXPECT_EQ(Questions.Messages[0].Caption, "Aviso");
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Information);
    EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::YesNo);
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(TheToDoList, KeepsATaskWhenThePersonIsNotSure) {
    Questions.Answers = {MessageAnswer::No};

    EXPECT_FALSE(Rules.cmdBorrar_Click(0));

    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheToDoList, AsksNothingInAnEmptyList) {
    EXPECT_FALSE(Rules.cmdBorrar_Click(std::nullopt));

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(TheToDoList, StaysModifiedWhenATaskIsAddedAndRemovedAgain) {
    Questions.Inputs = {"una"};
    Questions.Answers = {MessageAnswer::Yes};

    Rules.cmdAñadir_Click();
    Rules.cmdBorrar_Click(0);
    Rules.Form_Unload({});

    EXPECT_EQ(Opened.ToDoList, "");
    EXPECT_TRUE(Opened.Modified);
}

} // namespace
} // namespace Quillbox
