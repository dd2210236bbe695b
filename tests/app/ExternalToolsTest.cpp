// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ExternalTools.h"

#include "base/Paths.h"
#include "fakes/ErrorNumber.h"
#include "fakes/FakeSystem.h"
#include "surfaces/CompanionPrograms.h"

#include <QStringList>
#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class TheExternalTools : public testing::Test {
  protected:
    static QString Joined(std::initializer_list<QString> names) {
        return QStringList(names).join(PathSeparator);
    }

    const QString Generator = Joined({"/mi carpeta", "Scaffolder", "Scaffolder.exe"});
    CallLog Log;
    FakePrograms Launcher{Log};
    FakeFiles Stored{Log};
    FakeDialogs Questions{Log};
    CompanionPrograms Companions{QStringLiteral("/mi carpeta") + PathSeparator, Stored, Launcher,
                                 Questions};
    ExternalTools Tools{Companions, Launcher};
};

TEST_F(TheExternalTools, TheCalculatorStartsMinimisedAndUnchecked) {
    Tools.mnuHerramientas_Calculadora_Click();
    EXPECT_THAT(Log.Calls(), ElementsAre("programs.Start calc.exe Minimized"));
}

TEST_F(TheExternalTools, AMissingCalculatorIsARunTimeErrorWithoutAMessageOfItsOwn) {
    Launcher.Missing = true;
    EXPECT_EQ(ErrorNumberOf([this] { Tools.mnuHerramientas_Calculadora_Click(); }), 53);
    EXPECT_TRUE(Questions.Messages.empty());
}

TEST_F(TheExternalTools, TheGeneratorStartsWithoutQuotesInANormalWindowOnceItIsFound) {
    Stored.Contents[Generator] = "MZ";
    Tools.mnuHerramientas_ScaffolderGenerator_Click();
    EXPECT_THAT(Log.Calls(), ElementsAre("files.CanRead " + Generator.toStdString(),
                                         "programs.Start " + Generator.toStdString() + " Normal"));
}

TEST_F(TheExternalTools, AMissingGeneratorIsWarnedAboutAndNotStarted) {
    Tools.mnuHerramientas_ScaffolderGenerator_Click();
    EXPECT_THAT(Log.CallsOf({"programs."}), testing::IsEmpty());
    ASSERT_EQ(Questions.Messages.size(), 1U);
    const Message &warning = Questions.Messages[0];
    EXPECT_EQ(warning.Text, "El archivo " + Generator + " no existe.");
    EXPECT_EQ(warning.Caption, "Error");
    EXPECT_EQ(warning.Icon, MessageIcon::Exclamation);
    EXPECT_EQ(warning.Buttons, MessageButtons::Ok);
}

TEST_F(TheExternalTools, TheIndexPageIsHandedOverMaximisedUncheckedAndUnquoted) {
    Tools.mnuAyuda_Inkwell_Click();
    EXPECT_THAT(Log.Calls(),
                ElementsAre("programs.Start explorer.exe " +
                            Joined({"/mi carpeta", "Ayuda", "index.htm"}).toStdString() +
                            " Maximized"));
}

} // namespace
} // namespace Quillbox
