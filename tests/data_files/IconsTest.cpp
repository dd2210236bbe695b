// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Commands.h"
#include "data_files/DataFile.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace Quillbox {
namespace {

constexpr QSize ButtonSize(24, 24);

/// Pictures that stand on no button.
const std::map<std::string, QSize> OtherPictures = {
    {"carpeta", ButtonSize},        {"carpeta_abierta", ButtonSize}, {"archivo_imagen", ButtonSize},
    {"archivo_modelo", ButtonSize}, {"archivo_sonido", ButtonSize},  {"quillbox", QSize(64, 64)},
    {"splash", QSize(420, 260)}};

std::vector<std::string> PictureNames() {
    std::vector<std::string> names;
    for (const Command &command : Commands())
        if (command.IsToolButton())
            names.emplace_back(command.Button.Icon);
    for (const auto &[name, size] : OtherPictures)
        names.push_back(name);
    return names;
}

QSize SizeOf(const std::string &name) {
    const auto other = OtherPictures.find(name);
    return other == OtherPictures.end() ? ButtonSize : other->second;
}

class Icons : public testing::TestWithParam<std::string> {
  protected:
    static void SetUpTestSuite() {
        static int argumentCount = 0;
        Application = std::make_unique<QGuiApplication>(argumentCount, nullptr);
    }
    static void TearDownTestSuite() { Application.reset(); }

    static QString File() { return DataPath(QString("icons/%1.svg").arg(GetParam().c_str())); }

    static QImage Render(QSize size) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QSvgRenderer renderer(File());
        QPainter painter(&image);
        renderer.render(&painter);
        return image;
    }

    static inline std::unique_ptr<QGuiApplication> Application;
};

/// The share of the picture's points that are at least half covered.
double CoveredShare(const QImage &image) {
    int covered = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            covered += qAlpha(image.pixel(x, y)) >= 128;
    return covered / (1.0 * image.width() * image.height());
}

TEST_P(Icons, AreDrawnInTheirOwnUnits) {
    QSvgRenderer renderer(File());
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.defaultSize(), SizeOf(GetParam()));
    EXPECT_EQ(renderer.viewBoxF(), QRectF(QPointF(0, 0), SizeOf(GetParam())));
}

TEST_P(Icons, ShowSomethingAtTheirOwnSize) {
    EXPECT_GT(CoveredShare(Render(SizeOf(GetParam()))), 0.1);
}

TEST_P(Icons, ShowSomethingInTheSmallestSize) {
    EXPECT_GT(CoveredShare(Render(QSize(16, 16))), 0.1);
}

INSTANTIATE_TEST_SUITE_P(All, Icons, testing::ValuesIn(PictureNames()),
                         [](const auto &test) { return test.param; });

} // namespace
} // namespace Quillbox
