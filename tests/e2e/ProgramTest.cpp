// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"
#include "base/Version.h"

#include <QDir>
#include <QFile>

namespace Quillbox {
namespace {

bool WriteBytes(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString TitleWith(const QString &document) {
    return Exactly(QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto> - [%1]")
                       .arg(document));
}

} // namespace

QByteArray BytesOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray BytesOnceThey(const QByteArray &expected, const QString &path) {
    WaitUntil([&] { return BytesOf(path) == expected; });
    return BytesOf(path);
}

ProgramTest::ProgramTest()
    : Run_(Place_.filePath(QStringLiteral("Quillbox"))) {
    const QString folder = Place_.filePath(QStringLiteral("Quillbox"));
    EXPECT_TRUE(CopyFolder(QStringLiteral(QUILLBOX_PROGRAM_DIR), folder));
    EXPECT_TRUE(PrepareSettings(folder));
    EXPECT_TRUE(QDir(Place_.path()).mkdir(QStringLiteral("juegos")));
}

ProgramTest::~ProgramTest() {
    if (!HasFailure())
        return;
    const auto &test = *testing::UnitTest::GetInstance()->current_test_info();
    const QString name =
        QStringLiteral("%1.%2.png")
            .arg(QLatin1String(test.test_suite_name()), QLatin1String(test.name()));
    Person_.Screenshot(QStringLiteral(QUILLBOX_PICTURE_DIR "/") + name);
}

QString ProgramTest::ProgramFile(const QString &name) const {
    return Place_.filePath(QStringLiteral("Quillbox/") + name);
}

QString ProgramTest::PersonsFile(const QString &name) const {
    return Place_.filePath(QStringLiteral("juegos/") + name);
}

QString ProgramTest::Write(const QString &name, const QByteArray &bytes) {
    const QString path = PersonsFile(name);
    EXPECT_TRUE(WriteBytes(path, bytes)) << qPrintable(path);
    return path;
}

void ProgramTest::WriteSettings(const QByteArray &bytes) {
    EXPECT_TRUE(WriteBytes(SettingsFile(), bytes));
}

void ProgramTest::UseCompiler(const QByteArray &script) {
    const QString path = ProgramFile(QStringLiteral("compilador"));
    EXPECT_TRUE(WriteBytes(path, "#!/bin/sh\n" + script));
    EXPECT_TRUE(
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    WriteSettings("[Quillbox]\r\nFenixCPath=" + QFile::encodeName(path) + "\r\nMainPath=\r\n");
}

bool ProgramTest::Start(const QStringList &prefix) {
    return Run_.Start(prefix) && Person_.PressIn(MainTitle, {});
}

bool ProgramTest::Shows(const QString &document) {
    return Person_.WaitForWindow(TitleWith(document)) != 0;
}

bool ProgramTest::ShowsHelp() { return Shows(QStringLiteral("Ayuda")); }

bool ProgramTest::Open(const QString &path) {
    return Press({QStringLiteral("ctrl+o")}) && Person_.ChooseFile(OpenTitle, path) && Shows(path);
}

bool ProgramTest::OpenNew() { return Press({QStringLiteral("ctrl+n")}) && Shows(Untitled); }

bool ProgramTest::Press(const QStringList &keys) { return Person_.PressIn(MainTitle, keys); }

bool ProgramTest::ClosesWithQuestion(const QString &document) {
    return Press({QStringLiteral("ctrl+w")}) &&
           Person_.PressIn(QuestionTitle, {QStringLiteral("alt+n")}) &&
           Person_.WaitForNoWindow(TitleWith(document));
}

bool ProgramTest::ClosesAtOnce(const QString &document) {
    return Press({QStringLiteral("ctrl+w")}) && Person_.WaitForNoWindow(TitleWith(document));
}

bool ProgramTest::ReplacesAll() {
    const auto outcome = [this] {
        constexpr QRect place(5, 198, 300, 22);
        return Person_.PictureOf(FindTitle).copy(place);
    };
    const QImage before = outcome();
    Person_.Press({QStringLiteral("alt+t")});
    return WaitUntil([&] { return outcome() != before; });
}

bool ProgramTest::Leaves() {
    EXPECT_TRUE(Press({QStringLiteral("ctrl+q")}));
    EXPECT_TRUE(Run_.WaitForEnd());
    EXPECT_FALSE(Run_.HasCrashed());
    EXPECT_EQ(Run_.ExitCode(), 0) << qPrintable(Run_.Output());
    return !testing::Test::HasFailure();
}

} // namespace Quillbox
