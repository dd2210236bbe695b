// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Person.h"
#include "ProgramRun.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QTemporaryDir>

namespace Quillbox {

/// The main window, whatever is open in it.
inline const QString MainTitle = QStringLiteral("^Quillbox v1\\.0 - <Proyecto no abierto>");
inline const QString OpenTitle = QStringLiteral("^Abrir$");
inline const QString SaveTitle = QStringLiteral("^Guardar como$");
/// The question whether to save a changed document.
inline const QString QuestionTitle = QStringLiteral("^Atención$");
inline const QString FindTitle = QStringLiteral("^Buscar y reemplazar$");
inline const QString ErrorTitle = QStringLiteral("^Error$");
/// A compiler's error line, a run-time error, and what FXI.exe shows.
inline const QString NoticeTitle = QStringLiteral("^Quillbox$");
inline const QString Untitled = QStringLiteral("< sin título >");

/// What the file holds, nothing when it cannot be read.
QByteArray BytesOf(const QString &path);

/// Waits until the file holds these bytes and returns what it holds in the end.
QByteArray BytesOnceThey(const QByteArray &expected, const QString &path);

/// A person in front of the program, which has a folder of its own with settings that name the
/// structure checker. The person's files lie in a folder beside it.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest();
    /// Keeps a picture of the screen when the test has failed.
    ~ProgramTest() override;

    QString ProgramFile(const QString &name) const;
    QString SettingsFile() const { return ProgramFile(QStringLiteral("Quillbox.ini")); }
    QString PersonsFile(const QString &name) const;
    /// Puts bytes into a file of the person and returns its path.
    QString Write(const QString &name, const QByteArray &bytes);
    void WriteSettings(const QByteArray &bytes);
    /// Settings in which a shell script with these lines is the compiler.
    void UseCompiler(const QByteArray &script);

    /// Starts the program and waits until the main window has the keyboard.
    bool Start(const QStringList &prefix = {});
    /// True once the document is the one that the main window shows. A path or `Untitled`.
    bool Shows(const QString &document);
    bool ShowsHelp();
    /// Chooses the file in the chooser that Ctrl+O brings up.
    bool Open(const QString &path);
    bool OpenNew();
    /// Presses keys in the main window.
    bool Press(const QStringList &keys);
    /// Closes the active document and tells whether that asked about changes; the question, if
    /// any, is answered with No. False, too, when the document stays.
    bool ClosesWithQuestion(const QString &document);
    bool ClosesAtOnce(const QString &document);
    /// Presses "Reemplazar todo" in the dialog for finding and waits until it tells the outcome.
    bool ReplacesAll();
    /// Leaves with nothing to ask.
    bool Leaves();

    QTemporaryDir Place_;
    ProgramRun Run_;
    Person Person_;
};

} // namespace Quillbox
