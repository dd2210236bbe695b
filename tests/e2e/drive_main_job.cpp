// SPDX-License-Identifier: GPL-3.0-or-later
// Does the main job as a person would: opens the example with a mistake, edits it, checks it, lands
// on the error, mends it and runs it. Keeps a screenshot of every step.
#include "Desktop.h"
#include "Person.h"
#include "ProgramRun.h"
#include "base/Version.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Quillbox;

namespace {

class MainJob {
  public:
    MainJob(const QString &programFolder, const QString &pictureFolder)
        : Pictures_(pictureFolder)
        , Folder_(Copy_.filePath(QStringLiteral("Quillbox")))
        , Run_(Folder_) {
        Pictures_.mkpath(QStringLiteral("."));
        Ready_ = CopyFolder(programFolder, Folder_) && PrepareSettings(Folder_);
    }

    bool Do() {
        return Step("start the program", Ready_ && Run_.Start() && Splash()) &&
               Step("see the help page",
                    Person_.WaitForNoWindow(SplashTitle) && Picture("inicio")) &&
               Step("open the example with a mistake", OpenExample()) && Step("edit it", Edit()) &&
               Step("look for a word", LookForWord()) && Step("open a menu", OpenMenu()) &&
               Step("check it and land on the error", Check()) && Step("mend it", Mend()) &&
               Step("run it", RunProgram()) && Step("leave", Leave());
    }

  private:
    static inline const QString MainTitle =
        QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto");
    static inline const QString SplashTitle = QStringLiteral("El equipo de Quillbox");
    static inline const QString NoticeTitle = QStringLiteral("^Quillbox$");

    bool Step(const char *name, bool done) {
        std::printf("%s %s\n", done ? "  done:  " : "  FAILED:", name);
        std::fflush(stdout);
        if (!done)
            Picture("fallo");
        return done;
    }

    bool Picture(const char *name) {
        ++PictureCount_;
        const QString file = Pictures_.filePath(QStringLiteral("%1_%2.png")
                                                    .arg(PictureCount_, 2, 10, QLatin1Char('0'))
                                                    .arg(QLatin1String(name)));
        return Person_.Screenshot(file);
    }

    bool Splash() { return Person_.WaitForWindow(SplashTitle) != 0 && Picture("logotipo"); }

    QString Example() const { return Folder_ + QStringLiteral("/examples/09_con_un_error.prg"); }

    bool OpenExample() {
        return Person_.PressIn(MainTitle, {QStringLiteral("ctrl+o")}) &&
               Person_.WaitForWindow(QStringLiteral("^Abrir$")) != 0 && Picture("elegir") &&
               Person_.ChooseFile(QStringLiteral("^Abrir$"), Example()) &&
               Person_.WaitForWindow(QStringLiteral("09_con_un_error.prg")) != 0 &&
               Picture("abierto");
    }

    bool Edit() {
        Person_.Press({QStringLiteral("ctrl+Home")});
        Person_.Type(QStringLiteral("; una prueba\n"));
        return Picture("editado");
    }

    bool LookForWord() {
        const QString title = QStringLiteral("^Buscar y reemplazar$");
        if (!Person_.PressIn(MainTitle, {QStringLiteral("ctrl+f")}) || !Person_.PressIn(title, {}))
            return false;
        Person_.Type(QStringLiteral("altura\n"));
        return Picture("buscar") && Person_.PressIn(title, {QStringLiteral("Escape")});
    }

    bool OpenMenu() {
        return Person_.PressIn(MainTitle, {QStringLiteral("alt+e")}) && Person_.WaitForMenu() &&
               Picture("menu") && LeaveMenu();
    }

    /// The first key leaves the menu, the second one the menu bar.
    bool LeaveMenu() {
        Person_.Press({QStringLiteral("Escape")});
        return Person_.WaitForNoMenu() && Person_.PressIn(MainTitle, {QStringLiteral("Escape")});
    }

    bool Check() {
        Person_.Press({QStringLiteral("F7")});
        return CloseNotice("error");
    }

    /// The missing word goes in front of the line that the checker names.
    bool Mend() {
        if (!Person_.PressIn(MainTitle, {QStringLiteral("Home")}))
            return false;
        Person_.Type(QStringLiteral("EndIf\n"));
        return Picture("corregido");
    }

    bool RunProgram() {
        Person_.Press({QStringLiteral("F5")});
        return Person_.WaitForWindow(NoticeTitle) != 0 &&
               ProgramOf(Person_.ProcessOf(NoticeTitle)) == QStringLiteral("FXI.exe") &&
               CloseNotice("ejecutado");
    }

    /// The error line, or what stands in for the game.
    bool CloseNotice(const char *picture) {
        return Person_.WaitForWindow(NoticeTitle) != 0 && Picture(picture) &&
               Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}) &&
               Person_.WaitForNoWindow(NoticeTitle);
    }

    /// With a change that nobody wants to keep.
    bool Leave() {
        if (!Person_.PressIn(MainTitle, {}))
            return false;
        Person_.Type(QStringLiteral("x"));
        Person_.Press({QStringLiteral("ctrl+q")});
        const QString question = QStringLiteral("^Atención$");
        return Person_.WaitForWindow(question) != 0 && Picture("salir") &&
               Person_.PressIn(question, {QStringLiteral("alt+n")}) && Run_.WaitForEnd() &&
               Run_.ExitCode() == 0;
    }

    QDir Pictures_;
    QTemporaryDir Copy_;
    QString Folder_;
    ProgramRun Run_;
    Person Person_;
    bool Ready_ = false;
    int PictureCount_ = 0;
};

} // namespace

int main(int argc, char *argv[]) {
    if (argc < 3) {
        std::puts("usage: drive_main_job PROGRAM_FOLDER PICTURE_FOLDER [SCALE]");
        return 2;
    }
    const Desktop desktop(argc > 3 ? QByteArray(argv[3]).toInt() : 1);
    if (!desktop.IsRunning()) {
        std::puts("The virtual display does not start.");
        return 1;
    }
    QGuiApplication application(argc, argv);
    const QString pictures = QDir(QString::fromLocal8Bit(argv[2])).absolutePath();
    const bool done = MainJob(QDir(QString::fromLocal8Bit(argv[1])).absolutePath(), pictures).Do();
    std::printf("Screenshots: %s\n", qPrintable(pictures));
    return done ? 0 : 1;
}
