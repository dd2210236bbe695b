// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/UiProgram.h"
#include "fakes/Waiting.h"
#include "media/ui/PictureFile.h"
#include "media/ui/frmMediaBrowser.h"
#include "media/ui/frmMuestraImagenes.h"

#include <QImage>
#include <QLabel>
#include <QListView>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>

namespace Quillbox {
namespace {

/// The browser in the program folder, where the pictures of a test lie.
class PicturePreview : public UiProgram {
  protected:
    PicturePreview() {
        QDir::setCurrent(Folder.path());
        Start();
    }
    ~PicturePreview() override { QDir::setCurrent(Before_); }

    void WritePicture(const QString &name, QSize size, QColor color = Qt::red) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(PathOf(name)));
    }
    /// Presses the space bar on the only file.
    frmMuestraImagenes *ShowFile() {
        Trigger("mnuHerramientas_ExploradorMedia");
        Browser = Find<frmMediaBrowser>("frmMediaBrowser");
        QApplication::setActiveWindow(Browser);
        auto *files = Browser->findChild<QListView *>("filArchivos");
        files->setFocus();
        files->setCurrentIndex(files->model()->index(0, 0));
        const std::size_t said = Questions.Messages.size();
        QTest::keyClick(files, Qt::Key_Space);
        EXPECT_TRUE(WaitFor([&] { return HasTold(said) || HasSettled(); }));
        return Preview();
    }
    bool HasTold(std::size_t before) const { return Questions.Messages.size() > before; }
    /// The picture has the keyboard and has been fitted.
    bool HasSettled() {
        return Preview() && QGuiApplication::focusWindow() == Preview()->windowHandle() &&
               Preview()->findChild<QStatusBar *>("stbStatusBar")->isHidden();
    }
    frmMuestraImagenes *Preview() { return Find<frmMuestraImagenes>("frmMuestraImagenes"); }
    QString TextOfMessage() {
        return Questions.Messages.empty() ? QString() : Questions.Messages.back().Text;
    }

    frmMediaBrowser *Browser = nullptr;

  private:
    QString Before_ = QDir::currentPath();
};

TEST_F(PicturePreview, ShowsThePictureInTheCornerOfAWindowThatFitsIt) {
    WritePicture("nave.png", {320, 200});
    frmMuestraImagenes *preview = ShowFile();
    ASSERT_NE(preview, nullptr);
    auto *picture = preview->findChild<QLabel *>("imgMuestra");
    EXPECT_EQ(picture->geometry(), QRect(0, 0, 320, 200));
    EXPECT_EQ(picture->pixmap().toImage().pixelColor(100, 100), QColor(Qt::red));
    const QSize frame = preview->frameGeometry().size() - preview->size();
    EXPECT_EQ(preview->size(), (QSize(328, 227) - frame).expandedTo(picture->size()));
    EXPECT_EQ(preview->windowTitle(), "nave.png (320 × 200)");
    EXPECT_FALSE(preview->findChild<QStatusBar *>("stbStatusBar")->isVisible());
}

TEST_F(PicturePreview, FitsItsPictureAgainAfterItWasResized) {
    WritePicture("nave.png", {320, 200});
    frmMuestraImagenes *preview = ShowFile();
    const QSize fitting = preview->size();
    preview->resize(900, 700);
    EXPECT_TRUE(WaitFor([&] { return preview->size() == fitting; }));
}

/// A window manager that gives a window its own size whatever it asks for.
class ImposedSize : public QObject {
  public:
    explicit ImposedSize(QWidget *window)
        : QObject(window)
        , Window_(window) {
        window->installEventFilter(this);
        window->resize(Size_);
    }
    int Refused = 0;

  protected:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Resize && Window_->size() != Size_) {
            ++Refused;
            QMetaObject::invokeMethod(
                Window_, [this] { Window_->resize(Size_); }, Qt::QueuedConnection);
        }
        return false;
    }

  private:
    static constexpr QSize Size_{700, 500};
    QWidget *Window_;
};

TEST_F(PicturePreview, AsksOnlyOnceForASizeThatItDoesNotGet) {
    WritePicture("nave.png", {320, 200});
    frmMuestraImagenes *preview = ShowFile();
    const auto *manager = new ImposedSize(preview);
    for (int times = 0; times < 10; ++times) {
        preview->repaint();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(manager->Refused, 1);
    EXPECT_EQ(preview->size(), QSize(700, 500));
}

TEST_F(PicturePreview, ShrinksAPictureThatTheScreenCannotHold) {
    WritePicture("grande.png", {5000, 1000});
    frmMuestraImagenes *preview = ShowFile();
    ASSERT_NE(preview, nullptr);
    const QSize screen = preview->screen()->availableGeometry().size();
    EXPECT_LE(preview->width(), screen.width());
    const QSize shown = preview->findChild<QLabel *>("imgMuestra")->size();
    EXPECT_NEAR(shown.width(), 5 * shown.height(), 5);
}

TEST_F(PicturePreview, EnlargesATinyPicture) {
    WritePicture("bala.png", {16, 8});
    EXPECT_EQ(ShowFile()->findChild<QLabel *>("imgMuestra")->size(), QSize(128, 64));
}

TEST_F(PicturePreview, GoesByEscapeAndLeavesTheBrowserItsKeyboard) {
    WritePicture("nave.png", {320, 200});
    QTest::keyClick(ShowFile(), Qt::Key_Escape);
    EXPECT_TRUE(WaitFor([this] { return !Preview(); }));
    EXPECT_TRUE(Browser->isActiveWindow());
    EXPECT_TRUE(Browser->findChild<QListView *>("filArchivos")->hasFocus());
}

TEST_F(PicturePreview, GoesWhenItLosesTheFocusWithTheMainWindowInFront) {
    WritePicture("nave.png", {320, 200});
    ASSERT_NE(ShowFile(), nullptr);
    Main().activateWindow();
    EXPECT_TRUE(WaitFor([this] { return !Preview(); }));
    EXPECT_TRUE(Main().isActiveWindow());
}

TEST_F(PicturePreview, SaysThatAFormatIsNotKnown) {
    Write("nave.iff", "FORM");
    EXPECT_EQ(ShowFile(), nullptr);
    EXPECT_EQ(TextOfMessage(), "No se puede mostrar nave.iff: formato no admitido.");
}

TEST_F(PicturePreview, SaysThatAFileIsDamaged) {
    WritePicture("nave.png", {320, 200});
    Write("nave.png", Read("nave.png").left(60));
    EXPECT_EQ(ShowFile(), nullptr);
    EXPECT_EQ(TextOfMessage(), "No se puede mostrar nave.png: el archivo está dañado.");
}

TEST_F(PicturePreview, SaysThatAPictureIsTooLarge) {
    Write("nave.bmp", QByteArray::fromHex("424d 36000000 00000000 36000000 28000000 10270000 "
                                          "10270000 0100 1800 00000000 00000000 00000000 "
                                          "00000000 00000000 00000000"));
    EXPECT_EQ(ShowFile(), nullptr);
    EXPECT_EQ(TextOfMessage(), "No se puede mostrar nave.bmp: la imagen es demasiado grande.");
}

TEST_F(PicturePreview, SaysThatAFileIsGone) {
    EXPECT_EQ(ReadPictureFile(PathOf("nada.png")).Problem, PictureProblem::Unreadable);
}

TEST_F(PicturePreview, ReadsWhatQtReads) {
    for (const char *name : {"a.bmp", "a.jpg", "a.png"}) {
        WritePicture(name, {70, 80}, Qt::blue);
        const PictureFile picture = ReadPictureFile(PathOf(name));
        EXPECT_EQ(picture.Image.size(), QSize(70, 80)) << name;
        EXPECT_GT(picture.Image.pixelColor(30, 30).blue(), 250) << name;
    }
}

TEST_F(PicturePreview, ReadsTargaPictures) {
    Write("a.TGA", QByteArray::fromHex("00000200000000000000000001000200 1820 0000ff 00ff00"));
    const PictureFile picture = ReadPictureFile(PathOf("a.TGA"));
    ASSERT_EQ(picture.Problem, PictureProblem::None);
    EXPECT_EQ(picture.Image.size(), QSize(1, 2));
    EXPECT_EQ(picture.Image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(picture.Image.pixelColor(0, 1), QColor(Qt::green));
    EXPECT_FALSE(picture.Image.hasAlphaChannel());
}

} // namespace
} // namespace Quillbox
