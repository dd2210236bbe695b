// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ImagePreview.h"

#include "fakes/FakeMainWindow.h"
#include "media/ImagePreviewWindow.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class FakePreviewWindow : public ImagePreviewWindow {
  public:
    explicit FakePreviewWindow(CallLog &log)
        : Log_(log) {}

    void ShowStatusBar(bool shown) override { Log_.Add("preview.ShowStatusBar", shown); }
    void PlacePicture(QPoint topLeft) override {
        Log_.Add("preview.PlacePicture", topLeft.x(), topLeft.y());
    }
    QSize PictureSize() const override { return {320, 200}; }
    int DotsPerInch() const override { return Density; }
    void SetSize(QSize size) override { Log_.Add("preview.SetSize", size.width(), size.height()); }
    void Unload() override { Log_.Add("preview.Unload"); }

    int Density = 96;

  private:
    CallLog &Log_;
};

class ThePicturePreview : public testing::Test {
  protected:
    CallLog Log;
    FakeDisk Disk;
    FakeMainWindow Main{Log, Disk};
    FakePreviewWindow Window{Log};
    ImagePreview Rules{Window, Main};
};

TEST_F(ThePicturePreview, LoadsWithItsStatusBarAndThePictureInTheCorner) {
    Rules.Form_Load();
    EXPECT_THAT(Log.Calls(), ElementsAre("preview.ShowStatusBar true", "preview.PlacePicture 0 0"));
}

TEST_F(ThePicturePreview, HidesTheStatusBarAndFitsItsPictureAtEveryRepaint) {
    Rules.Form_Paint();
    EXPECT_THAT(Log.Calls(), ElementsAre("preview.ShowStatusBar false",
                                         "preview.SetSize 328 227")); // 115 and 400 twips more
}

TEST_F(ThePicturePreview, AllowsForTheLargerFrameOfADenserScreen) {
    Window.Density = 144;
    Rules.Form_Paint();
    EXPECT_THAT(Log.CallsOf({"preview.SetSize"}), ElementsAre("preview.SetSize 332 240"));
}

TEST_F(ThePicturePreview, RepaintsWhenItGetsTheFocus) {
    Rules.Form_GotFocus();
    EXPECT_THAT(Log.Calls(), ElementsAre("preview.ShowStatusBar false", "preview.SetSize 328 227"));
}

TEST_F(ThePicturePreview, GivesTheMainWindowTheFocusAndGoes) {
    Rules.LostFocus();
    EXPECT_THAT(Log.Calls(), ElementsAre("main.Activate", "preview.Unload"));
}

TEST(ShownPictures, KeepTheirSizeWhereThereIsRoom) {
    EXPECT_EQ(ShownSize({640, 480}, {1000, 800}), QSize(640, 480));
    EXPECT_EQ(ShownSize({64, 1}, {1000, 800}), QSize(64, 1));
}

TEST(ShownPictures, ShrinkToTheRoomAndKeepTheirProportion) {
    EXPECT_EQ(ShownSize({4000, 2000}, {1000, 800}), QSize(1000, 500));
    EXPECT_EQ(ShownSize({100, 1600}, {1000, 800}), QSize(50, 800));
    EXPECT_EQ(ShownSize({30000, 1}, {1000, 800}), QSize(1000, 1));
}

TEST(ShownPictures, GrowByAWholeFactorWhenTheyAreTiny) {
    EXPECT_EQ(ShownSize({32, 16}, {1000, 800}), QSize(128, 64));
    EXPECT_EQ(ShownSize({1, 1}, {1000, 800}), QSize(16, 16));
    EXPECT_EQ(ShownSize({63, 63}, {1000, 800}), QSize(126, 126));
}

} // namespace
} // namespace Quillbox
