// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the pictures of the help pages from the real program. Prints a line for each, with its
// width; a picture of what the program does not have yet is reported and the others are still
// taken.
#include "Desktop.h"
#include "Person.h"
#include "ProgramRun.h"
#include "base/Version.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>
#include <QSet>
#include <QTemporaryDir>

#include <cstdio>

using namespace Quillbox;

namespace {

constexpr QSize WindowSize(860, 560);
constexpr int BarsHeight = 88;    ///< menus, toolbar and lists of the main window
constexpr int ToolbarMiddle = 39; ///< and its buttons, in pixels from the window's corner
constexpr int ProjectButton = 510;
constexpr int TasksButton = 543;
constexpr int GraphicsLine = 12; ///< of the example, 1-based
constexpr int BlankLine = 4;

const QString AnyMainTitle = QStringLiteral("^Quillbox v" QUILLBOX_VERSION);
const QString SplashTitle = QStringLiteral("El equipo de Quillbox");
const QString NoticeTitle = QStringLiteral("^Quillbox$");
const QString OpenTitle = QStringLiteral("^Abrir$");
const QString FindTitle = QStringLiteral("^Buscar y reemplazar$");
const QString SettingsTitle = QStringLiteral("^Configuración");
const QString MediaTitle = QStringLiteral("^Explorador Media$");
const QString PreviewTitle = QStringLiteral("[.]png [(]");
const QString ProjectTitle = QStringLiteral("^Información del Proyecto$");
const QString TasksTitle = QStringLiteral("^Tareas Pendientes$");
const QString NewProjectTitle = QStringLiteral("^Nuevo proyecto$");

/// With a table of its colours when 256 are enough, which makes the file a third as large.
QImage WithColorTable(const QImage &picture) {
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height() && colors.size() <= 256; ++y)
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    if (colors.size() > 256)
        return picture;
    return picture.convertToFormat(QImage::Format_Indexed8, {colors.begin(), colors.end()});
}

bool Save(const QImage &picture, const QString &file) {
    QImageWriter writer(file, "png");
    writer.setCompression(100); // the most that the format's writer does
    return writer.write(WithColorTable(picture.convertToFormat(QImage::Format_RGB32)));
}

/// With a thin frame, so that a window's picture does not flow into the page around it.
QImage Framed(QImage picture) {
    QPainter painter(&picture);
    painter.setPen(QColor(144, 164, 174));
    painter.drawRect(0, 0, picture.width() - 1, picture.height() - 1);
    return picture;
}

/// A space ship of a few rectangles, to have something that the media browser can show.
QImage SpaceShip() {
    QImage picture(240, 180, QImage::Format_RGB32);
    picture.fill(QColor(20, 24, 48));
    QPainter painter(&picture);
    painter.fillRect(108, 40, 24, 90, QColor(90, 200, 255));
    painter.fillRect(70, 96, 100, 26, QColor(60, 140, 210));
    painter.fillRect(112, 130, 16, 22, QColor(255, 170, 60));
    return picture;
}

class HelpPictures {
  public:
    HelpPictures(const QString &programFolder, const QString &pictureFolder)
        : Pictures_(pictureFolder)
        , Folder_(Copy_.filePath(QStringLiteral("Quillbox")))
        , Run_(Folder_) {
        Pictures_.mkpath(QStringLiteral("."));
        Ready_ = CopyFolder(programFolder, Folder_) && PrepareSettings(Folder_) && MakeMedia();
    }

    /// True when every picture was taken.
    bool TakeAll() {
        if (!Ready_ || !Run_.Start() || !Person_.WaitForWindow(SplashTitle) ||
            !Person_.WaitForNoWindow(SplashTitle) || !Person_.Resize(AnyMainTitle, WindowSize)) {
            std::puts("missing: the program does not start");
            return false;
        }
        Take("ventana", [this] { return ShowProgram(); });
        TakeBars();
        Take("completar", [this] { return ShowCompletion(); });
        Person_.Press({QStringLiteral("Escape"), QStringLiteral("ctrl+z")});
        TakeWindow("buscar", FindTitle, [this] { return ShowFindDialog(); });
        Take("error", [this] { return ShowError(); });
        Person_.PressIn(NoticeTitle, {QStringLiteral("Return")});
        TakeSettings();
        TakeMedia();
        TakeProject();
        return Complete_;
    }

  private:
    using Step = std::function<bool()>;

    void Report(const char *name, const QImage &picture) {
        const bool taken =
            !picture.isNull() &&
            Save(Framed(picture), Pictures_.filePath(QLatin1String(name) + QStringLiteral(".png")));
        Complete_ = Complete_ && taken;
        if (taken)
            std::printf("%s %d\n", name, picture.width());
        else
            std::printf("missing: %s\n", name);
        std::fflush(stdout);
    }

    /// The main window with what `show` brought up.
    void Take(const char *name, const Step &show) {
        Report(name, show() ? Person_.PictureOf(AnyMainTitle) : QImage());
    }

    /// A window of its own, which is closed again.
    void TakeWindow(const char *name, const QString &title, const Step &show) {
        const bool shown = show() && Person_.WaitForWindow(title) != 0;
        Report(name, shown ? Person_.PictureOf(title) : QImage());
        Person_.Press({QStringLiteral("Escape")});
        Person_.WaitForNoWindow(title);
    }

    bool MakeMedia() const {
        const QDir folder(Folder_);
        QFile sound(folder.filePath(QStringLiteral("disparo.wav")));
        return SpaceShip().save(folder.filePath(QStringLiteral("nave.png"))) &&
               SpaceShip().mirrored().save(folder.filePath(QStringLiteral("enemigo.png"))) &&
               sound.open(QIODevice::WriteOnly);
    }

    bool Open(const char *example) {
        const QString file = Folder_ + QStringLiteral("/examples/") + QLatin1String(example);
        return Person_.PressIn(AnyMainTitle, {QStringLiteral("ctrl+o")}) &&
               Person_.ChooseFile(OpenTitle, file) && Person_.WaitForNoWindow(OpenTitle);
    }

    /// With the caret on the word Graphics, so that its quick help shows.
    bool ShowProgram() {
        QStringList keys(GraphicsLine - 1, QStringLiteral("Down"));
        keys.prepend(QStringLiteral("ctrl+Home"));
        keys.append(QStringLiteral("Right"));
        return Open("03_bolas.prg") && Person_.PressIn(AnyMainTitle, keys);
    }

    void TakeBars() {
        const QImage window = Person_.PictureOf(AnyMainTitle);
        Report("barra", window.isNull() ? window : window.copy(0, 0, window.width(), BarsHeight));
    }

    /// High up, so that the whole list is within the window.
    bool ShowCompletion() {
        QStringList keys(BlankLine - 1, QStringLiteral("Down"));
        keys.prepend(QStringLiteral("ctrl+Home"));
        if (!Person_.PressIn(AnyMainTitle, keys))
            return false;
        Person_.Type(QStringLiteral("load"));
        Person_.Press({QStringLiteral("ctrl+space")});
        return WaitForPopup();
    }

    /// A list over the text is a window without a title, as a menu is.
    bool WaitForPopup() { return Person_.WaitForMenu(); }

    bool ShowFindDialog() {
        if (!Person_.PressIn(AnyMainTitle, {QStringLiteral("ctrl+f")}) ||
            !Person_.PressIn(FindTitle, {}))
            return false;
        Person_.Type(QStringLiteral("bola\n"));
        return true;
    }

    bool ShowError() {
        return Open("09_con_un_error.prg") &&
               Person_.PressIn(AnyMainTitle, {QStringLiteral("F7")}) &&
               Person_.WaitForWindow(NoticeTitle) != 0;
    }

    /// The mnemonics of a menu and of its item.
    bool Choose(const QString &menu, const QString &item) {
        if (!Person_.PressIn(AnyMainTitle, {menu}) || !Person_.WaitForMenu())
            return false;
        Person_.Press({item});
        return true;
    }

    bool LeaveMenu() {
        Person_.Press({QStringLiteral("Escape")});
        return Person_.WaitForNoMenu() && Person_.PressIn(AnyMainTitle, {QStringLiteral("Escape")});
    }

    void TakeSettings() {
        const bool shown = Choose(QStringLiteral("alt+h"), QStringLiteral("c")) &&
                           Person_.WaitForWindow(SettingsTitle) != 0;
        for (const char *name :
             {"configuracion_directorios", "configuracion_editor", "configuracion_contexto"}) {
            Report(name, shown ? Person_.PictureOf(SettingsTitle) : QImage());
            if (shown)
                Person_.Press({QStringLiteral("ctrl+Tab")});
        }
        LeaveMenu();
    }

    /// With the first picture of the folder chosen.
    void TakeMedia() {
        const bool shown = Choose(QStringLiteral("alt+h"), QStringLiteral("e")) &&
                           Person_.WaitForWindow(MediaTitle) != 0;
        if (!shown)
            LeaveMenu();
        else
            Person_.PressIn(MediaTitle, {QStringLiteral("alt+a"), QStringLiteral("Down"),
                                         QStringLiteral("Home"), QStringLiteral("Down")});
        Report("media", shown ? Person_.PictureOf(MediaTitle) : QImage());
        TakeWindow("muestra", PreviewTitle,
                   [&] { return shown && Person_.PressIn(MediaTitle, {QStringLiteral("space")}); });
        if (shown)
            Person_.PressIn(MediaTitle, {QStringLiteral("alt+v")});
    }

    bool OpenProject() {
        const QString file =
            Folder_ + QStringLiteral("/examples/proyecto_meteoritos/Meteoritos.fp");
        return Choose(QStringLiteral("alt+a"), QStringLiteral("b")) &&
               Person_.ChooseFile(OpenTitle, file) && Person_.WaitForNoWindow(OpenTitle) &&
               Person_.WaitForWindow(QStringLiteral("Lluvia de meteoritos")) != 0;
    }

    void TakeProject() {
        const bool opened = OpenProject();
        const auto click = [&](int button) {
            return opened && Person_.PressIn(AnyMainTitle, {}) &&
                   Person_.ClickIn(AnyMainTitle, QPoint(button, ToolbarMiddle));
        };
        TakeWindow("proyecto", ProjectTitle, [&] { return click(ProjectButton); });
        TakeWindow("tareas", TasksTitle, [&] { return click(TasksButton); });
        TakeWindow("nuevo_proyecto", NewProjectTitle, [this] { return ShowNewProject(); });
    }

    bool ShowNewProject() {
        if (!Choose(QStringLiteral("alt+a"), QStringLiteral("u")) ||
            !Person_.PressIn(NewProjectTitle, {}))
            return false;
        Person_.Type(QStringLiteral("Lluvia de estrellas"));
        Person_.Press({QStringLiteral("Tab")});
        Person_.Type(QStringLiteral("Ana"));
        return true;
    }

    QDir Pictures_;
    QTemporaryDir Copy_{QDir::tempPath() + QStringLiteral("/juegos-XXXXXX")};
    QString Folder_;
    ProgramRun Run_;
    Person Person_;
    bool Ready_ = false;
    bool Complete_ = true;
};

} // namespace

int main(int argc, char *argv[]) {
    if (argc != 3) {
        std::puts("usage: drive_help_pictures PROGRAM_FOLDER PICTURE_FOLDER");
        return 2;
    }
    const Desktop desktop;
    if (!desktop.IsRunning()) {
        std::puts("The virtual display does not start.");
        return 1;
    }
    QGuiApplication application(argc, argv);
    const auto folder = [&](int argument) {
        return QDir(QString::fromLocal8Bit(argv[argument])).absolutePath();
    };
    return HelpPictures(folder(1), folder(2)).TakeAll() ? 0 : 1;
}
