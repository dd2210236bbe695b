// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/SettingsDialogProgram.h"

#include "fakes/Waiting.h"

#include <QComboBox>
#include <QWindow>

namespace Quillbox {
namespace {

class TheSettingsDialog : public SettingsDialogProgram {};

TEST_F(TheSettingsDialog, StoresEverythingWhenItIsAccepted) {
    Settings expected = Options();
    InSettings({[&](frmSettings &dialog) {
        Enter(dialog, "txtCompilerPath", QStringLiteral("/otro/FXC.exe"));
        Enter(dialog, "txtHelpPath", QStringLiteral("/otro/index.html"));
        Enter(dialog, "txtTabSize", QStringLiteral("8"));
        for (const char *name : {"chkColorSyntax", "chkLineNumbers", "chkQuickHelp", "chkFunciones",
                                 "chkLabels", "chkTypes"})
            In<QCheckBox>(dialog, name).click();
        for (int row = 0; row <= Background; ++row) {
            ChooseColor(dialog, row, Color{row + 100});
            if (row != Background)
                In<QListWidget>(dialog, "lstStyles").setCurrentRow((row + 2) % 5);
        }
        Questions.Fonts = {FontChoice{QStringLiteral("DejaVu Sans Mono"), 14}};
        Click(dialog, "cmdCambiarFuente");
        Accept(dialog);
        EXPECT_FALSE(dialog.isVisible());
    }});
    expected.FenixCPath = QStringLiteral("/otro/FXC.exe");
    expected.HelpPath = QStringLiteral("/otro/index.html");
    expected.MainPath = QStringLiteral("/otro/");
    expected.TabSize = 8;
    expected.ColorSyntax = expected.LineNumbers = expected.ShowQuickHelp = false;
    expected.ShowFunctions = expected.ShowLabels = expected.ShowTypes = false;
    expected.KeywordsColor = {100};
    expected.NumbersColor = {101};
    expected.OperatorsColor = {102};
    expected.StringColor = {103};
    expected.CommentsColor = {104};
    expected.TextColor = {105};
    expected.BackgroundColor = {106};
    expected.KeywordsStyle = 2;
    expected.NumbersStyle = 3;
    expected.OperatorsStyle = 4;
    expected.StringsStyle = 0;
    expected.CommentsStyle = 1;
    expected.TextStyle = 2;
    expected.Font = QStringLiteral("DejaVu Sans Mono");
    expected.FontSize = 14;
    EXPECT_EQ(Options(), expected);
}

TEST_F(TheSettingsDialog, IsAcceptedWithReturnFromAnyTextBox) {
    for (const char *name : {"txtCompilerPath", "txtHelpPath", "txtTabSize"})
        InSettings({[&](QDialog &dialog) {
            auto &box = In<QLineEdit>(dialog, name);
            QTest::keyClick(&box, Qt::Key_Return);
            EXPECT_FALSE(dialog.isVisible()) << name;
        }});
}

TEST_F(TheSettingsDialog, StoresNothingWhenItIsCancelledInAnyWay) {
    const Settings before = Options();
    const Step closings[] = {
        [](QDialog &dialog) { Click(dialog, "cmdCancelar"); },
        [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](QDialog &dialog) { QTest::keyClick(&TabSizeIn(dialog), Qt::Key_Escape); },
        [](QDialog &dialog) { dialog.close(); }};
    for (const Step &closing : closings)
        InSettings({[&](frmSettings &dialog) {
            ChooseColor(dialog, 0, Green);
            In<QCheckBox>(dialog, "chkTypes").click();
            Enter(dialog, "txtCompilerPath", QStringLiteral("/x/FXC.exe"));
            closing(dialog);
            EXPECT_FALSE(dialog.isVisible());
        }});
    EXPECT_EQ(Options(), before);
}

TEST_F(TheSettingsDialog, ForgetsWhatWasNotConfirmed) {
    InSettings({[this](QDialog &dialog) { ChooseColor(dialog, 0, Green); }});
    InSettings({[](QDialog &dialog) { EXPECT_NE(SampleIn(dialog), QColor(10, 220, 30)); }});
}

TEST_F(TheSettingsDialog, ShowsWhatIsAcceptedInTheCurrentEditorAtOnce) {
    OpenDocument(QStringLiteral("a.prg"));
    InSettings({[this](frmSettings &dialog) {
        ChooseColor(dialog, Background, Blue);
        Accept(dialog);
    }});
    EXPECT_EQ(BackgroundOf(1), Blue);
    EXPECT_EQ(Main().focusWidget(), EditorOf(1));
}

TEST_F(TheSettingsDialog, NeverShowsWhatIsCancelled) {
    OpenDocument(QStringLiteral("a.prg"));
    const Color before = BackgroundOf(1);
    InSettings({[this](QDialog &dialog) { ChooseColor(dialog, Background, Blue); }});
    OpenDocument(QStringLiteral("b.prg"));
    EXPECT_EQ(BackgroundOf(1), before);
    EXPECT_EQ(BackgroundOf(2), before);
}

// Aplicar

TEST_F(TheSettingsDialog, ShowsWhatIsAppliedInTheCurrentEditorAndComesBack) {
    OpenDocument(QStringLiteral("a.prg"));
    const frmSettings *first = nullptr;
    InSettings({[&](frmSettings &dialog) {
                    first = &dialog;
                    ChooseColor(dialog, Background, Blue);
                    Apply(dialog);
                    EXPECT_EQ(BackgroundOf(1), Blue);
                },
                [&](frmSettings &dialog) {
                    EXPECT_EQ(&dialog, first);
                    EXPECT_TRUE(dialog.isVisible());
                    EXPECT_TRUE(dialog.isModal());
                    EXPECT_EQ(SampleIn(dialog), QColor(10, 20, 240));
                }});
    EXPECT_EQ(BackgroundOf(1), Blue);
}

TEST_F(TheSettingsDialog, ShowsWhatIsAppliedInAnotherEditorWhenThatGetsTheKeyboard) {
    OpenDocument(QStringLiteral("a.prg"));
    OpenDocument(QStringLiteral("b.prg"));
    const Color before = BackgroundOf(1);
    InSettings({[this](frmSettings &dialog) {
                    ChooseColor(dialog, Background, Blue);
                    Apply(dialog);
                },
                [](frmSettings &) {}});
    EXPECT_EQ(BackgroundOf(2), Blue);
    EXPECT_EQ(BackgroundOf(1), before);
    Trigger(QStringLiteral("mnuVentana_Anterior"));
    EXPECT_EQ(BackgroundOf(1), Blue);
}

TEST_F(TheSettingsDialog, CanBeAppliedAgainAndAgain) {
    OpenDocument(QStringLiteral("a.prg"));
    std::vector<Step> steps;
    for (int times = 0; times < 20; ++times)
        steps.emplace_back([this, times](frmSettings &dialog) {
            ChooseColor(dialog, Background, Color{times});
            Apply(dialog);
            EXPECT_EQ(BackgroundOf(1), Color{times});
        });
    steps.emplace_back([](frmSettings &dialog) { Accept(dialog); });
    InSettings(steps);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(Main().findChildren<QDialog *>(QStringLiteral("frmSettings")).size(), 0);
}

TEST_F(TheSettingsDialog, KeepsWhatWasAppliedWhenItIsCancelledLater) {
    OpenDocument(QStringLiteral("a.prg"));
    InSettings({[this](frmSettings &dialog) {
                    ChooseColor(dialog, Background, Blue);
                    Apply(dialog);
                },
                [this](frmSettings &dialog) {
                    ChooseColor(dialog, Background, Green);
                    Click(dialog, "cmdCancelar");
                }});
    EXPECT_EQ(Options().BackgroundColor, Blue);
    EXPECT_EQ(BackgroundOf(1), Blue);
}

TEST_F(TheSettingsDialog, ComesBackFromApplyingOnTheHelpPage) {
    InSettings({[](frmSettings &dialog) { Apply(dialog); },
                [](frmSettings &dialog) { EXPECT_TRUE(dialog.isVisible()); }});
}

TEST_F(TheSettingsDialog, ComesBackInItsPlaceWithTheTabAndTheButtonThatWereUsed) {
    QPoint place;
    InSettings({[&](frmSettings &dialog) {
                    ShowTab(dialog, 2);
                    In<QPushButton>(dialog, "cmdAplicar").setFocus();
                    dialog.windowHandle()->setPosition(37, 41); // as a window manager does
                    DoWhatIsDue();
                    place = dialog.pos();
                    Apply(dialog);
                },
                [&](frmSettings &dialog) {
                    EXPECT_EQ(dialog.findChild<QTabWidget *>()->currentIndex(), 2);
                    EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("cmdAplicar"));
                    EXPECT_EQ(dialog.pos(), place);
                }});
}

TEST_F(TheSettingsDialog, DoesNotOpenTwiceWhileItIsAway) {
    InSettings({[this](frmSettings &dialog) {
                    QTimer::singleShot(0, &Main(), [this] {
                        Find<QAction>(QStringLiteral("mnuHerramientas_Configuracion"))->trigger();
                    });
                    Apply(dialog);
                    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
                },
                [](frmSettings &) {}});
}

TEST_F(TheSettingsDialog, StaysAwayWhenTheMainWindowIsClosedMeanwhile) {
    InSettings({[this](frmSettings &dialog) {
        QTimer::singleShot(0, &Main(), [this] { Main().close(); });
        Apply(dialog);
        EXPECT_FALSE(Main().isVisible());
    }});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

// The symbol lists

TEST_F(TheSettingsDialog, EmptiesTheListsOfTheMainWindowWithoutFunctions) {
    OpenDocument(QStringLiteral("a.prg"), "process Uno()\r\ntype Nave\r\n");
    ASSERT_EQ(Find<QComboBox>(QStringLiteral("cmbFunciones"))->count(), 1);
    InSettings({[](frmSettings &dialog) {
        for (const char *name : {"chkFunciones", "chkLabels", "chkTypes"})
            In<QCheckBox>(dialog, name).setChecked(false);
        Accept(dialog);
    }});
    for (const char *name : {"cmbFunciones", "cmbLabels", "cmbTypes"})
        EXPECT_EQ(Find<QComboBox>(QLatin1String(name))->count(), 0) << name;
}

TEST_F(TheSettingsDialog, FillsTheListsAgainWithFunctions) {
    Options().ShowFunctions = Options().ShowTypes = Options().ShowLabels = false;
    OpenDocument(QStringLiteral("a.prg"), "process Uno()\r\n");
    ASSERT_EQ(Find<QComboBox>(QStringLiteral("cmbFunciones"))->count(), 0);
    InSettings({[](frmSettings &dialog) {
        In<QCheckBox>(dialog, "chkFunciones").setChecked(true);
        Accept(dialog);
    }});
    EXPECT_EQ(Find<QComboBox>(QStringLiteral("cmbFunciones"))->count(), 1);
}

// Failures

TEST_F(TheSettingsDialog, ReportsACompilerPathThatIsTooShortAndStays) {
    OpenDocument(QStringLiteral("a.prg"));
    Settings expected = Options();
    expected.FenixCPath = QStringLiteral("corto");
    expected.HelpPath = QStringLiteral("/j/i.htm");
    for (const char *button : {"cmdAceptar", "cmdAplicar"}) {
        Questions.Messages.clear();
        InSettings({[&](frmSettings &dialog) {
            ChooseColor(dialog, Background, Green);
            Enter(dialog, "txtCompilerPath", QStringLiteral("corto"));
            Enter(dialog, "txtHelpPath", QStringLiteral("/j/i.htm"));
            Enter(dialog, "txtTabSize", QStringLiteral("9"));
            Click(dialog, button);
            EXPECT_TRUE(dialog.isVisible()) << button;
        }});
        ASSERT_EQ(Questions.Messages.size(), 1U);
        EXPECT_EQ(Questions.Messages[0].Text, ErrorMessage(InvalidArgument()));
        EXPECT_EQ(Options(), expected);
    }
    EXPECT_NE(BackgroundOf(1), Green);
}

TEST_F(TheSettingsDialog, CanBeAcceptedAfterAPathWasCorrected) {
    InSettings({[&](frmSettings &dialog) {
        Enter(dialog, "txtCompilerPath", QString());
        Accept(dialog);
        EXPECT_TRUE(dialog.isVisible());
        Enter(dialog, "txtCompilerPath", QLatin1String(PlainPath));
        Enter(dialog, "txtTabSize", QStringLiteral("9"));
        Accept(dialog);
        EXPECT_FALSE(dialog.isVisible());
    }});
    EXPECT_EQ(Options().TabSize, 9);
}

TEST_F(TheSettingsDialog, StartsTheExplorerWithItsHelpPage) {
    InSettings({[](frmSettings &dialog) {
        Click(dialog, "cmdAyuda");
        EXPECT_TRUE(dialog.isVisible());
    }});
    EXPECT_EQ(Log.CallsOf({"programs."}),
              std::vector<std::string>{"programs.Start explorer.exe " + AppDir().toStdString() +
                                       "Ayuda/HowTo.htm Maximized"});
}

TEST_F(TheSettingsDialog, ReportsAMissingExplorer) {
    Launcher.Missing = true;
    InSettings({[](frmSettings &dialog) { Click(dialog, "cmdAyuda"); }});
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, ErrorMessage(FileNotFound()));
}

} // namespace
} // namespace Quillbox
