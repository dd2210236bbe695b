// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QColor>
#include <QFile>
#include <QFontDatabase>

namespace Quillbox {
namespace {

const QString DialogTitle = QStringLiteral("^Configuración\\.\\.\\.$");
const QString ColorTitle = QStringLiteral("^Elegir color$");
const QString FontTitle = QStringLiteral("^Elegir fuente$");
const QString FontFamily = QStringLiteral("DejaVu Sans Mono");

/// Of the main window.
constexpr QPoint SettingsButton(192, 40);
constexpr QPoint BlankPaper(600, 300);
constexpr QPoint LineNumbers(45, 300);
/// Of the dialog.
constexpr QPoint AcceptButton(-309, -22);
constexpr QPoint ContextTab(200, 26);
constexpr QPoint LabelsBox(41, 180);

struct ItemChoice {
    const char *Html;
    int Style;
};

/// In the order of the list in the dialog; the last one is the background.
constexpr ItemChoice Items[] = {{"#112233", 2}, {"#445566", 3}, {"#778899", 4}, {"#0a0b0c", 1},
                                {"#d0e0f0", 2}, {"#010203", 4}, {"#203040", 0}};

constexpr const char *AllChosen = "[Quillbox]\r\n"
                                  "FenixCPath=C:\\Juegos\\bin\\FXC.exe\r\n"
                                  "HelpPath=C:\\Juegos\\ayuda.htm\r\n"
                                  "MainPath=C:\\Juegos\\bin\\\r\n"
                                  "ShowQuickHelp=0\r\n"
                                  "ColorSyntax=0\r\n"
                                  "StringColor=789258\r\n"
                                  "OperatorsColor=10061943\r\n"
                                  "TextColor=197121\r\n"
                                  "BackgroundColor=4206624\r\n"
                                  "KeywordsColor=3351057\r\n"
                                  "CommentsColor=15786192\r\n"
                                  "NumbersColor=6706500\r\n"
                                  "StringsStyle=1\r\n"
                                  "CommentsStyle=2\r\n"
                                  "OperatorsStyle=4\r\n"
                                  "TextStyle=4\r\n"
                                  "KeywordsStyle=2\r\n"
                                  "NumbersStyle=3\r\n"
                                  "Font=DejaVu Sans Mono\r\n"
                                  "FontSize=14\r\n"
                                  "TabSize=7\r\n"
                                  "LineNumbers=0\r\n"
                                  "ShowFunctions=0\r\n"
                                  "ShowLabels=0\r\n"
                                  "ShowTypes=0\r\n";

/// The settings dialog of the real program, from what a person chooses in it to the settings file.
class Settings : public ProgramTest {
  protected:
    bool OpenDialog() {
        return Press({QStringLiteral("alt+h")}) && Person_.WaitForMenu() &&
               Person_.PressIn(MainTitle, {QStringLiteral("c")}) && InDialog({});
    }
    bool InDialog(const QStringList &keys) { return Person_.PressIn(DialogTitle, keys); }
    bool DialogIsGone() { return Person_.WaitForNoWindow(DialogTitle); }

    /// From the tab "Directorios", on which the dialog opens, to the first control of the next one.
    bool GoToEditorTab() { return InDialog({QStringLiteral("ctrl+Tab")}); }

    /// With the keyboard on the list of items, where it stays.
    bool ChooseColor(const char *html) {
        if (!InDialog({QStringLiteral("Tab"), QStringLiteral("space")}) ||
            !Person_.PressIn(ColorTitle, {QStringLiteral("alt+h"), QStringLiteral("ctrl+a")}))
            return false;
        Person_.Paste(QLatin1String(html));
        Person_.Press({QStringLiteral("Return")});
        return Person_.WaitForNoWindow(ColorTitle) && InDialog({QStringLiteral("shift+Tab")});
    }
    bool ChooseStyle(int style) {
        QStringList keys = {QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("Home")};
        keys += QStringList(style, QStringLiteral("Down"));
        keys += QStringList(2, QStringLiteral("shift+Tab"));
        return InDialog(keys);
    }
    bool ChooseItems() {
        for (const ItemChoice &item : Items) {
            const bool isBackground = &item == std::end(Items) - 1;
            if (!ChooseColor(item.Html) || (!isBackground && !ChooseStyle(item.Style)) ||
                !InDialog({QStringLiteral("Down")}))
                return false;
        }
        return true;
    }
    bool ChooseBackground(const char *html) {
        return GoToEditorTab() && InDialog({QStringLiteral("End")}) && ChooseColor(html);
    }
    /// With the keyboard on the button that changes the font. 14 is the eighth size on offer.
    bool ChooseFont() {
        const auto family = QFontDatabase::families().indexOf(FontFamily);
        QStringList keys = {QStringLiteral("Home")};
        keys += QStringList(family, QStringLiteral("Down"));
        keys += {QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("Home")};
        keys += QStringList(7, QStringLiteral("Down")) + QStringList{QStringLiteral("Return")};
        return family >= 0 && InDialog({QStringLiteral("space")}) &&
               Person_.PressIn(FontTitle, keys) && Person_.WaitForNoWindow(FontTitle);
    }
    bool ChoosePaths(const QString &compiler, const QString &help) {
        if (!InDialog({QStringLiteral("ctrl+a")}))
            return false;
        Person_.Paste(compiler);
        Person_.Press({QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("ctrl+a")});
        Person_.Paste(help);
        return true;
    }
    /// From the list of items on; the background, the last item, has no list of styles to stop at.
    bool ChooseTheRestOfTheEditor() {
        if (!InDialog({QStringLiteral("Home"), QStringLiteral("Tab"), QStringLiteral("Tab"),
                       QStringLiteral("Tab")}) ||
            !ChooseFont() ||
            !InDialog({QStringLiteral("Tab"), QStringLiteral("space"), QStringLiteral("Tab"),
                       QStringLiteral("space"), QStringLiteral("Tab"), QStringLiteral("ctrl+a")}))
            return false;
        Person_.Type(QStringLiteral("7"));
        return true;
    }
    bool ClearTheContext() {
        return Person_.ClickIn(DialogTitle, ContextTab) &&
               Person_.ClickIn(DialogTitle, LabelsBox) &&
               InDialog({QStringLiteral("shift+Tab"), QStringLiteral("space"),
                         QStringLiteral("shift+Tab"), QStringLiteral("space"),
                         QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("Tab"),
                         QStringLiteral("space")});
    }

    bool PaperIs(const char *html, QPoint place = BlankPaper) {
        const QColor color = QColor::fromString(QLatin1String(html));
        return WaitUntil([&] {
            const QImage window = Person_.PictureOf(MainTitle);
            return window.valid(place) && window.pixelColor(place) == color;
        });
    }
    QString Stored(const QByteArray &key) {
        const QByteArray bytes = BytesOf(SettingsFile());
        const auto start = bytes.indexOf('\n' + key + '=') + key.size() + 2;
        return QString::fromLatin1(bytes.mid(start, bytes.indexOf('\r', start) - start));
    }
};

} // namespace

TEST_F(Settings, AllChosenInTheDialogAreStoredAndShownByTheNextRun) {
    ASSERT_TRUE(QFile::remove(SettingsFile()));
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Person_.ClickIn(MainTitle, SettingsButton));
    ASSERT_TRUE(ChoosePaths(QStringLiteral("C:\\Juegos\\bin\\FXC.exe"),
                            QStringLiteral("C:\\Juegos\\ayuda.htm")));
    ASSERT_TRUE(GoToEditorTab());
    ASSERT_TRUE(ChooseItems());
    ASSERT_TRUE(ChooseTheRestOfTheEditor());
    ASSERT_TRUE(ClearTheContext());
    ASSERT_TRUE(Person_.ClickIn(DialogTitle, AcceptButton));
    ASSERT_TRUE(DialogIsGone());
    ASSERT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(SettingsFile()), AllChosen);

    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    EXPECT_TRUE(PaperIs("#203040"));
    EXPECT_TRUE(PaperIs("#203040", LineNumbers));
    ASSERT_TRUE(OpenDialog());
    EXPECT_EQ(Person_.CopyAll(), QStringLiteral("C:\\Juegos\\bin\\FXC.exe"));
    // What the dialog shows is what it stores again.
    ASSERT_TRUE(InDialog({QStringLiteral("Return")}));
    ASSERT_TRUE(DialogIsGone());
    ASSERT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(SettingsFile()), AllChosen);
}

TEST_F(Settings, CancelledAreNotStored) {
    ASSERT_TRUE(Start() && Leaves());
    const QByteArray before = BytesOf(SettingsFile());
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    ASSERT_TRUE(OpenDialog());
    ASSERT_TRUE(ChoosePaths(QStringLiteral("C:\\Otro\\FXC.exe"), QStringLiteral("otra.htm")));
    ASSERT_TRUE(ChooseBackground("#203040"));
    ASSERT_TRUE(InDialog({QStringLiteral("alt+c")}));
    ASSERT_TRUE(DialogIsGone());
    EXPECT_TRUE(PaperIs("#ffffff"));
    ASSERT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(SettingsFile()), before);
}

TEST_F(Settings, AppliedShowAtOnceAndTheDialogComesAgain) {
    ASSERT_TRUE(QFile::remove(SettingsFile()));
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    ASSERT_TRUE(PaperIs("#ffffff"));
    EXPECT_NE(Person_.PictureOf(MainTitle).pixelColor(LineNumbers), QColor(Qt::white));
    ASSERT_TRUE(OpenDialog());
    ASSERT_TRUE(ChooseBackground("#203040"));
    ASSERT_TRUE(InDialog({QStringLiteral("alt+p")}));
    // Beside the dialog, which is in front of the paper's middle.
    EXPECT_TRUE(PaperIs("#203040", QPoint(940, 300)));
    ASSERT_TRUE(InDialog({QStringLiteral("Escape")}));
    ASSERT_TRUE(DialogIsGone());
    EXPECT_TRUE(PaperIs("#203040"));
    ASSERT_TRUE(Leaves());
    EXPECT_EQ(Stored("BackgroundColor"), QStringLiteral("4206624"));
}

TEST_F(Settings, WithATooShortCompilerPathStoreThePathsAloneAndTheProgramGoesOn) {
    ASSERT_TRUE(QFile::remove(SettingsFile()));
    ASSERT_TRUE(Start() && Leaves());
    QByteArray expected = BytesOf(SettingsFile());
    expected.replace("C:\\Fenix\\FXC.exe", "corto");
    expected.replace("C:\\Fenix\\docs\\index.xml", "otra.htm");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenDialog());
    ASSERT_TRUE(ChoosePaths(QStringLiteral("corto"), QStringLiteral("otra.htm")));
    ASSERT_TRUE(ChooseBackground("#203040"));
    ASSERT_TRUE(InDialog({QStringLiteral("alt+a")}));
    EXPECT_TRUE(Person_.ReadMessage(NoticeTitle).contains(QStringLiteral("error 5 ")));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(NoticeTitle));
    ASSERT_TRUE(InDialog({QStringLiteral("Escape")}));
    ASSERT_TRUE(DialogIsGone());
    ASSERT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(SettingsFile()), expected);
}

} // namespace Quillbox
