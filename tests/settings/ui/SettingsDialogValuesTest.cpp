// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/SettingsDialogProgram.h"

#include <QClipboard>
#include <QLabel>
#include <QSpinBox>
#include <QStyleOptionSpinBox>

namespace Quillbox {
namespace {

class TheValuesOfTheSettingsDialog : public SettingsDialogProgram {};

TEST_F(TheValuesOfTheSettingsDialog, ShowsTheSettings) {
    Options().HelpPath = QStringLiteral("/j/ayuda/índice.htm");
    Options().TabSize = 7;
    Options().LineNumbers = false;
    Options().ShowTypes = false;
    InSettings({[](QDialog &dialog) {
        EXPECT_EQ(TextIn(dialog, "txtCompilerPath"), QLatin1String(PlainPath));
        EXPECT_EQ(TextIn(dialog, "txtHelpPath"), QStringLiteral("/j/ayuda/índice.htm"));
        EXPECT_EQ(TextIn(dialog, "txtTabSize"), QStringLiteral("7"));
        EXPECT_EQ(In<QSpinBox>(dialog, "spnTabSize").value(), 7);
        EXPECT_FALSE(In<QCheckBox>(dialog, "chkLineNumbers").isChecked());
        EXPECT_FALSE(In<QCheckBox>(dialog, "chkTypes").isChecked());
        for (const char *name : {"chkColorSyntax", "chkQuickHelp", "chkFunciones", "chkLabels"})
            EXPECT_TRUE(In<QCheckBox>(dialog, name).isChecked()) << name;
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, OpensOnTheKeywordsWithTheirColourAndStyle) {
    Options().KeywordsColor = Blue;
    InSettings({[](QDialog &dialog) {
        EXPECT_EQ(In<QListWidget>(dialog, "lstItems").currentItem()->text(),
                  QStringLiteral("Palabras clave"));
        EXPECT_EQ(SampleIn(dialog), QColor(10, 20, 240));
        EXPECT_EQ(In<QListWidget>(dialog, "lstStyles").currentItem()->text(),
                  QStringLiteral("Negrita"));
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, DisablesTheStylesForTheBackgroundOnly) {
    InSettings({[](QDialog &dialog) {
        auto &styles = In<QListWidget>(dialog, "lstStyles");
        In<QListWidget>(dialog, "lstItems").setCurrentRow(Background);
        EXPECT_FALSE(styles.isEnabled());
        EXPECT_EQ(styles.currentItem()->text(), QStringLiteral("Normal"));
        EXPECT_EQ(SampleIn(dialog), QColor(255, 255, 255));
        In<QListWidget>(dialog, "lstItems").setCurrentRow(2);
        EXPECT_TRUE(styles.isEnabled());
        EXPECT_EQ(styles.currentItem()->text(), QStringLiteral("Negrita"));
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, KeepsAnEntrySelectedThatIsClickedWithCtrl) {
    InSettings({[](QDialog &dialog) { ShowTab(dialog, 1); },
                [](QDialog &dialog) {
                    auto &items = In<QListWidget>(dialog, "lstItems");
                    const QPoint first = items.visualItemRect(items.item(0)).center();
                    QTest::mouseClick(items.viewport(), Qt::LeftButton, Qt::ControlModifier, first);
                    EXPECT_TRUE(items.item(0)->isSelected());
                    QTest::keyClick(&items, Qt::Key_Down, Qt::ControlModifier);
                    EXPECT_TRUE(items.item(1)->isSelected());
                    EXPECT_EQ(items.selectedItems().size(), 1);
                }});
}

TEST_F(TheValuesOfTheSettingsDialog, WritesTheFontsNameAndSizeInThatFont) {
    Options().Font = QStringLiteral("DejaVu Sans Mono");
    Options().FontSize = 13;
    InSettings({[this](QDialog &dialog) {
        const auto &sample = In<QLabel>(dialog, "lblFont");
        EXPECT_EQ(sample.text(), QStringLiteral("13 DejaVu Sans Mono"));
        EXPECT_EQ(sample.font().family(), QStringLiteral("DejaVu Sans Mono"));
        EXPECT_EQ(sample.font().pointSize(), 13);
        Questions.Fonts = {FontChoice{QStringLiteral("DejaVu Sans"), 10.5}};
        Click(dialog, "cmdCambiarFuente");
        EXPECT_EQ(sample.text(), QStringLiteral("10.5 DejaVu Sans"));
        EXPECT_EQ(sample.font().family(), QStringLiteral("DejaVu Sans"));
        EXPECT_EQ(sample.font().pointSizeF(), 10.5);
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, ShowsTheChosenColourAndLeavesItWhenTheChooserIsCancelled) {
    InSettings({[this](QDialog &dialog) {
        ChooseColor(dialog, 1, Green);
        EXPECT_EQ(SampleIn(dialog), QColor(10, 220, 30));
        Click(dialog, "cmdCambiarColor");
        EXPECT_EQ(SampleIn(dialog), QColor(10, 220, 30));
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, TakesThePathsThatAreChosen) {
    Questions.Choices = {QStringLiteral("/j/fxc.exe"), std::nullopt,
                         QStringLiteral("/j/index.html")};
    InSettings({[](QDialog &dialog) {
        Click(dialog, "cmdCompilerBrowse");
        EXPECT_EQ(TextIn(dialog, "txtCompilerPath"), QStringLiteral("/j/fxc.exe"));
        Click(dialog, "cmdCompilerBrowse");
        EXPECT_EQ(TextIn(dialog, "txtCompilerPath"), QStringLiteral("/j/fxc.exe"));
        Click(dialog, "cmdHelpBrowse");
        EXPECT_EQ(TextIn(dialog, "txtHelpPath"), QStringLiteral("/j/index.html"));
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, ReplacesInAPathWhatTheSettingsFileCannotHold) {
    InSettings({[](QDialog &dialog) {
        Enter(dialog, "txtHelpPath", QStringLiteral("/j/ñ日.htm"));
        EXPECT_EQ(TextIn(dialog, "txtHelpPath"), QStringLiteral("/j/ñ?.htm"));
    }});
}

// The tab size

TEST_F(TheValuesOfTheSettingsDialog, HoldsATypedTabSizeTo255) {
    InSettings({[](QDialog &dialog) {
        auto &box = TabSizeIn(dialog);
        QTest::keyClicks(&box, QStringLiteral("300"));
        EXPECT_EQ(box.text(), QStringLiteral("255"));
        EXPECT_EQ(In<QSpinBox>(dialog, "spnTabSize").value(), 255);
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, ReadsOneInAnEmptiedTabSize) {
    InSettings({[](QDialog &dialog) {
        auto &box = TabSizeIn(dialog);
        QTest::keyClick(&box, Qt::Key_Delete);
        EXPECT_EQ(box.text(), QStringLiteral("1"));
        EXPECT_EQ(In<QSpinBox>(dialog, "spnTabSize").value(), 1);
        QTest::keyClicks(&box, QStringLiteral("8")); // over the 1, which is selected
        EXPECT_EQ(box.text(), QStringLiteral("8"));
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, DiscardsLettersAndBackspaceInTheTabSize) {
    InSettings({[](QDialog &dialog) {
        auto &box = TabSizeIn(dialog);
        QTest::keyClicks(&box, QStringLiteral("aZ-+. /;"));
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_Ntilde, Qt::NoModifier, QStringLiteral("ñ"));
        QApplication::sendEvent(&box, &letter);
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(box.text(), QStringLiteral("3"));
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, TakesAColonInTheTabSizeAndStoresTheNumberBeforeIt) {
    InSettings({[](frmSettings &dialog) {
        auto &box = TabSizeIn(dialog);
        box.deselect();
        box.end(false);
        QTest::keyClicks(&box, QStringLiteral(":"));
        EXPECT_EQ(box.text(), QStringLiteral("3:"));
        Accept(dialog);
    }});
    EXPECT_EQ(Options().TabSize, 3);
}

TEST_F(TheValuesOfTheSettingsDialog, TakesAWholeTextThatIsPastedByTheMenuAsATabSize) {
    InSettings({[](QDialog &dialog) {
        auto &box = TabSizeIn(dialog);
        QApplication::clipboard()->setText(QStringLiteral("12 columnas"));
        box.paste();
        EXPECT_EQ(box.text(), QStringLiteral("12"));
        EXPECT_EQ(In<QSpinBox>(dialog, "spnTabSize").value(), 12);
    }});
}

TEST_F(TheValuesOfTheSettingsDialog, SpinsTheTabSizeByMouseAndGivesItsBoxTheKeyboard) {
    InSettings({[](QDialog &dialog) { ShowTab(dialog, 1); },
                [](QDialog &dialog) {
                    auto &spinner = In<QSpinBox>(dialog, "spnTabSize");
                    QStyleOptionSpinBox option;
                    option.initFrom(&spinner);
                    option.frame = true;
                    option.subControls = QStyle::SC_All;
                    option.buttonSymbols = spinner.buttonSymbols();
                    option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
                    const auto click = [&](QStyle::SubControl part) {
                        In<QWidget>(dialog, "cmdAceptar").setFocus();
                        QTest::mouseClick(
                            &spinner, Qt::LeftButton, {},
                            spinner.style()
                                ->subControlRect(QStyle::CC_SpinBox, &option, part, &spinner)
                                .center());
                        EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("txtTabSize"));
                        return TextIn(dialog, "txtTabSize");
                    };
                    EXPECT_EQ(click(QStyle::SC_SpinBoxUp), QStringLiteral("4"));
                    EXPECT_EQ(click(QStyle::SC_SpinBoxDown), QStringLiteral("3"));
                }});
}

TEST_F(TheValuesOfTheSettingsDialog, SpinsTheTabSizeWithTheArrowKeysBetweenItsLimits) {
    InSettings({[](QDialog &dialog) {
        auto &box = TabSizeIn(dialog);
        QTest::keyClick(&box, Qt::Key_Up);
        EXPECT_EQ(box.text(), QStringLiteral("4"));
        for (int times = 0; times < 5; ++times)
            QTest::keyClick(&box, Qt::Key_Down);
        EXPECT_EQ(box.text(), QStringLiteral("1"));
        box.setText(QStringLiteral("255"));
        QTest::keyClick(&box, Qt::Key_Up);
        EXPECT_EQ(box.text(), QStringLiteral("255"));
    }});
}

} // namespace
} // namespace Quillbox
