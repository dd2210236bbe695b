// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Program.h"

#include "documents/ui/frmDoc.h"
#include "fakes/FakeSystem.h"
#include "fakes/Waiting.h"
#include "platform/ProfileFiles.h"
#include "platform/SystemFiles.h"
#include "platform/SystemFolders.h"
#include "surfaces/EditorControl.h"
#include "widgets/QtEventLoop.h"

#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace Quillbox {

/// The program with its real windows on the offscreen platform and its real files in a temporary
/// program folder; questions, compilers and started programs are fakes.
class UiProgram : public testing::Test {
  protected:
    void Start() {
        Program_.emplace(
            Outside{AppDir(), Stored, Profile, Console, Launcher, Questions, Events, Disks});
        Program_->Start();
        QApplication::setActiveWindow(&Main());
        Settle();
    }

    QString AppDir() const { return Folder.path() + u'/'; }
    QString PathOf(const QString &name) const { return Folder.filePath(name); }

    QString Write(const QString &name, const QByteArray &content) {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QByteArray Read(const QString &name) {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    frmMain &Main() { return Program_->Main(); }
    DocumentRegistry &Registry() { return Program_->Registry(); }
    template <typename Widget>
    Widget *Find(const QString &name) {
        return Main().findChild<Widget *>(name);
    }
    void Trigger(const QString &command) {
        Find<QAction>(command)->trigger();
        Settle();
    }
    /// Opens a file of the folder through the menu.
    void Open(const QString &name) {
        Questions.Choices.push_back(PathOf(name));
        Trigger(QStringLiteral("mnuArchivo_Abrir"));
    }
    frmDoc *WindowOf(int position) {
        return dynamic_cast<frmDoc *>(Registry().Documents[position].Window);
    }
    QWidget *EditorOf(int position) {
        return WindowOf(position)->findChild<QWidget *>(QStringLiteral("txtCode"));
    }
    static void Settle() { DoWhatIsDue(); }

    QTemporaryDir Folder;
    CallLog Log;
    FakeDialogs Questions{Log};
    FakeConsole Console{Log};
    FakePrograms Launcher{Log};
    SystemFiles Stored;
    ProfileFiles Profile;
    QtEventLoop Events;
    SystemFolders Disks;
    std::optional<Program> Program_;
};

} // namespace Quillbox
