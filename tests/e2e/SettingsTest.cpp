// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QColor>
#include <QFontDatabase>
#include <QImage>

namespace Quillbox {
namespace {

const QString SettingsTitle = QStringLiteral("^Configuración\\.\\.\\.$");
const QString ColorTitle = QStringLiteral("^Elegir color$");
const QString FontTitle = QStringLiteral("^Elegir fuente$");

const QString Tab = QStringLiteral("Tab");
const QString Back = QStringLiteral("shift+Tab");
const QString NextPage = QStringLiteral("ctrl+Tab");
const QString Space = QStringLiteral("space");
const QString All = QStringLiteral("ctrl+a");

/// In the editor, to the right of any text and of the dialog.
constexpr QPoint InTheEditor(-60, 400);

constexpr int BackgroundRow = 6;

/// The settings dialog by keyboard, from one control to the next.
class Settings : public ProgramTest {
  protected:
    bool OpenDialog() {
        if (!Press({QStringLiteral("alt+h")}) || !Person_.WaitForMenu())
            return false;
        Person_.Press({QStringLiteral("c")});
        return Person_.PressIn(SettingsTitle, {});
    }
    bool InDialog(const QStringList &keys) { return Person_.PressIn(SettingsTitle, keys); }
    bool DialogCloses() { return Person_.WaitForNoWindow(SettingsTitle); }

    void Replace(const QString &text) {
        Person_.Press({All});
        Person_.Paste(text);
    }
    /// The list that has the keyboard selects the row.
    void SelectRow(int row) {
        Person_.Press(QStringList(QStringLiteral("Home")) +
                      QStringList(row, QStringLiteral("Down")));
    }
    /// From the list of syntax classes and back to it.
    bool ChooseColor(int row, const QColor &color) {
        SelectRow(row);
        Person_.Press({Tab, Space});
        if (!Person_.PressIn(ColorTitle, {QStringLiteral("alt+h"), All}))
            return false;
        Person_.Paste(color.name());
        Person_.Press({QStringLiteral("Return")});
        return Person_.WaitForNoWindow(ColorTitle) && InDialog({Back});
    }
    /// From the list of syntax classes and back to it.
    void ChooseStyle(int row, int style) {
        SelectRow(row);
        Person_.Press({Tab, Tab});
        SelectRow(style);
        Person_.Press({Back, Back});
    }
    /// The last font of the list in this size, from the button that asks for it and back.
    bool ChooseLastFont(int size) {
        Person_.Press({Space});
        if (!Person_.PressIn(FontTitle, {QStringLiteral("End"), Tab, Tab, All}))
            return false;
        Person_.Type(QString::number(size));
        Person_.Press({QStringLiteral("Return")});
        return Person_.WaitForNoWindow(FontTitle) && InDialog({});
    }
    /// True once the editor shows the colour behind its text.
    bool EditorShows(const QColor &color) {
        return WaitUntil([&] {
            const QImage picture = Person_.PictureOf(MainTitle);
            return !picture.isNull() &&
                   picture.pixelColor(picture.width() + InTheEditor.x(), InTheEditor.y()) == color;
        });
    }
    bool OpenGame() { return Start() && Open(Write(QStringLiteral("juego.prg"), "Cls\r\n")); }
};

QColor ColorOfRow(int row) { return {20 + 30 * row, 10 * row, 200 - 20 * row}; }

/// As the settings file holds it: red in the low byte.
QByteArray NumberOf(const QColor &color) {
    return QByteArray::number(color.red() | color.green() << 8 | color.blue() << 16);
}

} // namespace

TEST_F(Settings, ThatAreChangedInTheDialogAreKeptForTheNextStart) {
    constexpr int styles[] = {2, 3, 4, 1, 4, 3};
    ASSERT_TRUE(OpenGame());
    ASSERT_TRUE(OpenDialog());
    Replace(QStringLiteral("/opt/fénix/FXC.exe"));
    Person_.Press({Tab, Tab});
    Replace(QStringLiteral("/opt/fénix/docs/index.html"));

    ASSERT_TRUE(InDialog({NextPage}));
    for (int row = 0; row <= BackgroundRow; ++row)
        ASSERT_TRUE(ChooseColor(row, ColorOfRow(row)));
    for (int row = 0; row < BackgroundRow; ++row)
        ChooseStyle(row, styles[row]);
    Person_.Press({Tab, Tab, Tab});
    ASSERT_TRUE(ChooseLastFont(14));
    Person_.Press({Tab, Space, Tab, Space, Tab, All});
    Person_.Type(QStringLiteral("8"));

    ASSERT_TRUE(InDialog({NextPage, Space, Tab, Space, Tab, Space, Tab, Space}));
    Person_.Press({QStringLiteral("Return")});
    ASSERT_TRUE(DialogCloses());
    EXPECT_TRUE(EditorShows(ColorOfRow(BackgroundRow)));
    ASSERT_TRUE(Leaves());

    const QByteArray expected = "[Quillbox]\r\n"
                                "FenixCPath=/opt/f\xe9nix/FXC.exe\r\n"
                                "MainPath=/opt/f\xe9nix/\r\n"
                                "HelpPath=/opt/f\xe9nix/docs/index.html\r\n"
                                "ShowQuickHelp=0\r\n"
                                "ColorSyntax=0\r\n"
                                "StringColor=" +
                                NumberOf(ColorOfRow(3)) +
                                "\r\nOperatorsColor=" + NumberOf(ColorOfRow(2)) +
                                "\r\nTextColor=" + NumberOf(ColorOfRow(5)) +
                                "\r\nBackgroundColor=" + NumberOf(ColorOfRow(6)) +
                                "\r\nKeywordsColor=" + NumberOf(ColorOfRow(0)) +
                                "\r\nCommentsColor=" + NumberOf(ColorOfRow(4)) +
                                "\r\nNumbersColor=" + NumberOf(ColorOfRow(1)) +
                                "\r\nStringsStyle=1\r\n"
                                "CommentsStyle=4\r\n"
                                "OperatorsStyle=4\r\n"
                                "TextStyle=3\r\n"
                                "KeywordsStyle=2\r\n"
                                "NumbersStyle=3\r\n"
                                "Font=" +
                                QFontDatabase::families().constLast().toLatin1() +
                                "\r\nFontSize=14\r\n"
                                "TabSize=8\r\n"
                                "LineNumbers=0\r\n"
                                "ShowFunctions=0\r\n"
                                "ShowLabels=0\r\n"
                                "ShowTypes=0\r\n";
    EXPECT_EQ(BytesOf(SettingsFile()).toStdString(), expected.toStdString());

    ASSERT_TRUE(OpenGame());
    EXPECT_TRUE(EditorShows(ColorOfRow(BackgroundRow)));
    ASSERT_TRUE(OpenDialog());
    EXPECT_EQ(Person_.CopyAll(), QStringLiteral("/opt/fénix/FXC.exe"));
    ASSERT_TRUE(InDialog({QStringLiteral("Escape")}));
    ASSERT_TRUE(DialogCloses());
    ASSERT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(SettingsFile()).toStdString(), expected.toStdString());
}

TEST_F(Settings, ThatAreAppliedShowBehindTheDialogAndThoseCancelledLaterNever) {
    ASSERT_TRUE(OpenGame());
    ASSERT_TRUE(EditorShows(Qt::white));
    ASSERT_TRUE(OpenDialog());
    ASSERT_TRUE(InDialog({NextPage}));
    for (const QColor &applied : {QColor(200, 240, 250), QColor(250, 240, 200)}) {
        ASSERT_TRUE(InDialog({}));
        ASSERT_TRUE(ChooseColor(BackgroundRow, applied));
        ASSERT_TRUE(InDialog({QStringLiteral("alt+p")}));
        EXPECT_TRUE(EditorShows(applied)); // after which the dialog comes again
    }
    ASSERT_TRUE(InDialog({}));
    ASSERT_TRUE(ChooseColor(BackgroundRow, QColor(0, 0, 90)));
    ASSERT_TRUE(InDialog({QStringLiteral("Escape")}));
    ASSERT_TRUE(DialogCloses());
    EXPECT_TRUE(EditorShows(QColor(250, 240, 200)));
    ASSERT_TRUE(Leaves());
    EXPECT_TRUE(BytesOf(SettingsFile())
                    .contains("BackgroundColor=" + NumberOf(QColor(250, 240, 200)) + "\r\n"));
}

TEST_F(Settings, WithACompilerPathThatIsTooShortAreReportedAndTheProgramGoesOn) {
    ASSERT_TRUE(OpenGame());
    ASSERT_TRUE(OpenDialog());
    Replace(QStringLiteral("corto"));
    ASSERT_TRUE(InDialog({NextPage}));
    ASSERT_TRUE(ChooseColor(BackgroundRow, QColor(0, 0, 90)));
    Person_.Press({QStringLiteral("Return")});
    ASSERT_NE(Person_.WaitForWindow(NoticeTitle), 0);
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
              QStringLiteral("Se ha producido el error 5 en tiempo de ejecución:\n\n"
                             "Argumento o llamada a procedimiento no válidos."));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(NoticeTitle));
    ASSERT_TRUE(InDialog({QStringLiteral("Escape")}));
    ASSERT_TRUE(DialogCloses());
    EXPECT_TRUE(EditorShows(Qt::white));
    ASSERT_TRUE(Leaves());
    EXPECT_TRUE(BytesOf(SettingsFile()).contains("FenixCPath=corto\r\nMainPath=\r\n"));
    EXPECT_TRUE(BytesOf(SettingsFile()).contains("BackgroundColor=16777215\r\n"));
}

} // namespace Quillbox
