// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include "editor/ui/ScintillaPrinting.h"

#include "fakes/Waiting.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTest>
#include <QTimer>

namespace Quillbox {

namespace {

class Printing : public EditorTest {
  protected:
    /// Opens the preview, where `person` acts, and closes it.
    void Preview(const std::function<void(QPrintPreviewDialog &)> &person) {
        bool acted = false;
        QTimer::singleShot(0, Editor.get(), [&] {
            auto *dialog = qobject_cast<QPrintPreviewDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            ASSERT_TRUE(WaitFor([&] { return PagesOf(*dialog) > 0; }));
            person(*dialog);
            acted = true;
            dialog->reject();
        });
        Editor->Print(QStringLiteral("juego.bb"));
        EXPECT_TRUE(acted);
    }
    static int PagesOf(const QPrintPreviewDialog &dialog) {
        return dialog.findChild<QPrintPreviewWidget *>()->pageCount();
    }
    static int InkOf(const QImage &image) {
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        return dark;
    }
};

} // namespace

TEST_F(Printing, ShowsThePagesFirst) {
    Load(QByteArray("print 1 // linea\r\n").repeated(200));
    Preview([](QPrintPreviewDialog &dialog) {
        EXPECT_GT(PagesOf(dialog), 1);
        EXPECT_LT(PagesOf(dialog), 20);
        EXPECT_TRUE(dialog.windowTitle().contains("juego.bb"));
    });
}

TEST_F(Printing, ShowsTheTextOnThePage) {
    const auto ink = [this](const QByteArray &text) {
        int dark = 0;
        Load(text);
        Preview([&](QPrintPreviewDialog &dialog) {
            dark = InkOf(dialog.findChild<QPrintPreviewWidget *>()->grab().toImage());
        });
        return dark;
    };
    const int empty = ink("");
    EXPECT_GT(ink(QByteArray("print print print\r\n").repeated(60)), empty + 500);
}

TEST_F(Printing, ShowsTheBeginningOfAVeryLongText) {
    Load(QByteArray("x\n").repeated(100'000));
    Preview([](QPrintPreviewDialog &dialog) {
        EXPECT_GT(PagesOf(dialog), 50);
        EXPECT_LT(PagesOf(dialog), 200);
    });
}

TEST_F(Printing, LeavesTheEditorAsItWas) {
    Load("print 1\nprint 2");
    Select(At(0, 1), At(1, 2));
    Preview([](QPrintPreviewDialog &) {});
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 1), At(1, 2)}));
    EXPECT_FALSE(Editor->IsModified());
}

TEST_F(Printing, OfEveryPageHasFileNameAndNumber) {
    Load(QByteArray("x\n").repeated(100));
    EditorPrinter printer(QStringLiteral("juego.bb"));
    QImage page(400, 100, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    QRect area(0, 0, 400, 100);
    printer.formatPage(painter, true, area, 7);
    painter.end();
    EXPECT_GT(area.top(), 10);
    EXPECT_GT(InkOf(page.copy(0, 0, 150, area.top())), 20);
    EXPECT_GT(InkOf(page.copy(300, 0, 100, area.top())), 20);
    EXPECT_EQ(InkOf(page.copy(0, area.top(), 400, 100 - area.top())), 0);
}

TEST_F(Printing, PutsTheFirstLinesOnPaperWhenAskedForThem) {
    Load(QByteArray("x\n").repeated(2000));
    EditorPrinter printer(QStringLiteral("juego.bb"));
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(PathOf("juego.pdf"));
    Editor->PrintOn(printer, Editor->LineCount());
    const int all = printer.PageCount();
    Editor->PrintOn(printer, 10);
    EXPECT_EQ(printer.PageCount(), 1);
    EXPECT_GT(all, 10);
}

} // namespace Quillbox
