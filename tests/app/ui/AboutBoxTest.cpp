// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmAcercaDe.h"

#include "base/Version.h"
#include "fakes/UiProgram.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

namespace Quillbox {
namespace {

class AboutBox : public testing::Test {
  protected:
    template <typename Widget>
    Widget &In(const char *name) {
        return *Box.findChild<Widget *>(QLatin1String(name));
    }
    QString TextOf(const char *name) { return In<QLabel>(name).text(); }

    frmAcercaDe Box{nullptr};
};

TEST_F(AboutBox, NamesTheProgramAndItsVersion) {
    EXPECT_EQ(Box.windowTitle(), "Acerca de Quillbox");
    EXPECT_EQ(TextOf("lblTitle"), "Quillbox");
    EXPECT_EQ(TextOf("lblVersion"), "Versión " QUILLBOX_VERSION);
    EXPECT_FALSE(In<QLabel>("picIcon").pixmap().isNull());
    EXPECT_EQ(Box.findChildren<QFrame *>(QRegularExpression("^linSeparador")).size(), 2);
}

TEST_F(AboutBox, SaysWhatItIsForAndThatItIsFreeWithoutGuarantee) {
    EXPECT_TRUE(TextOf("lblDescription").contains("Fenix 0.83b o posterior"));
    EXPECT_TRUE(TextOf("lblDisclaimer").contains("gratuito"));
    EXPECT_TRUE(TextOf("lblDisclaimer").contains("no se hace responsable"));
}

TEST_F(AboutBox, ShowsNoContactData) {
    for (const char *label : {"lblDescription", "lblDisclaimer"})
        EXPECT_FALSE(TextOf(label).contains(QRegularExpression("@|www|https?:|\\d{6}"))) << label;
}

TEST_F(AboutBox, ShowsEveryTextWhole) {
    Box.show();
    for (const QLabel *label : Box.findChildren<QLabel *>())
        EXPECT_GE(label->height(), label->heightForWidth(label->width()))
            << qPrintable(label->text());
}

TEST_F(AboutBox, ClosesWithItsButtonReturnAndEscape) {
    const std::function<void()> ways[] = {[this] { In<QPushButton>("cmdAceptar").click(); },
                                          [this] { QTest::keyClick(&Box, Qt::Key_Return); },
                                          [this] { QTest::keyClick(&Box, Qt::Key_Escape); }};
    EXPECT_EQ(In<QPushButton>("cmdAceptar").text(), "Aceptar");
    for (const auto &leave : ways) {
        Box.show();
        leave();
        EXPECT_FALSE(Box.isVisible());
    }
}

class AboutCommand : public UiProgram {};

TEST_F(AboutCommand, ShowsTheBoxModally) {
    Start();
    bool wasModal = false;
    QTimer::singleShot(0, [&] {
        QWidget *box = QApplication::activeModalWidget();
        wasModal = box && box->objectName() == "frmAcercaDe";
        box->close();
    });
    Trigger("mnuAyuda_Acercade");
    EXPECT_TRUE(wasModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace Quillbox
