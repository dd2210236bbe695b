// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/DataFile.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <gtest/gtest.h>
#include <memory>

namespace Quillbox {
namespace {

struct Picture {
    const char *Name;
    QSize Size;
};

void PrintTo(const Picture &picture, std::ostream *stream) { *stream << picture.Name; }

constexpr QSize ButtonSize(24, 24);

const Picture Pictures[] = {
    {"nuevo", ButtonSize},
    {"abrir", ButtonSize},
    {"guardar", ButtonSize},
    {"imprimir", ButtonSize},
    {"cerrar", ButtonSize},
    {"configuracion", ButtonSize},
    {"buscar", ButtonSize},
    {"deshacer", ButtonSize},
    {"rehacer", ButtonSize},
    {"cortar", ButtonSize},
    {"copiar", ButtonSize},
    {"pegar", ButtonSize},
    {"ejecutar", ButtonSize},
    {"abrir_proyecto", ButtonSize},
    {"informacion_del_proyecto", ButtonSize},
    {"tareas_pendientes", ButtonSize},
    {"explorador_media", ButtonSize},
    {"inicio", ButtonSize},
    {"atras", ButtonSize},
    {"adelante", ButtonSize},
    {"salir", ButtonSize},
    {"carpeta", ButtonSize},
    {"carpeta_abierta", ButtonSize},
    {"archivo_imagen", ButtonSize},
    {"archivo_modelo", ButtonSize},
    {"archivo_sonido", ButtonSize},
    {"quillbox", QSize(64, 64)},
    {"splash", QSize(420, 260)},
};

class Icons : public testing::TestWithParam<Picture> {
  protected:
    static void SetUpTestSuite() {
        static int argumentCount = 0;
        Application = std::make_unique<QGuiApplication>(argumentCount, nullptr);
    }
    static void TearDownTestSuite() { Application.reset(); }

    static QString File() { return DataPath(QString("icons/%1.svg").arg(GetParam().Name)); }

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
    EXPECT_EQ(renderer.defaultSize(), GetParam().Size);
    EXPECT_EQ(renderer.viewBoxF(), QRectF(QPointF(0, 0), GetParam().Size));
}

TEST_P(Icons, ShowSomethingAtTheirOwnSize) {
    EXPECT_GT(CoveredShare(Render(GetParam().Size)), 0.1);
}

TEST_P(Icons, ShowSomethingInTheSmallestSize) {
    EXPECT_GT(CoveredShare(Render(QSize(16, 16))), 0.1);
}

INSTANTIATE_TEST_SUITE_P(All, Icons, testing::ValuesIn(Pictures),
                         [](const auto &test) { return std::string(test.param.Name); });

} // namespace
} // namespace Quillbox
