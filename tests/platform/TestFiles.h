// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SaveFile.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>

namespace Quillbox {

inline void WriteTestFile(const QString &path, const QByteArray &content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

inline QByteArray ReadTestFile(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline void SetMode(const QString &path, mode_t mode) {
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

inline struct stat StatusOf(const QString &path) {
    struct stat status {};
    EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    return status;
}

inline mode_t ModeOf(const QString &path) { return StatusOf(path).st_mode & 07777; }

inline QByteArray Pattern(qsizetype size) {
    QByteArray bytes(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>((i * 7 + i / 256) & 0xFF);
    return bytes;
}

/// Hands `content` over in pieces of 1000 bytes. It must outlive the producer.
inline ByteProducer ProducerOf(const QByteArray &content) {
    return [&content](const ByteSink &sink) {
        std::string_view rest(content.constData(), static_cast<std::size_t>(content.size()));
        for (; !rest.empty(); rest.remove_prefix(std::min<std::size_t>(rest.size(), 1000)))
            sink(rest.substr(0, 1000));
    };
}

/// A test with a folder of its own, which is the current one while the test runs.
class FolderTest : public testing::Test {
  protected:
    FolderTest() { QDir::setCurrent(Folder_.path()); }
    ~FolderTest() override { QDir::setCurrent(Before_); }

    QString PathOf(const QString &name) const { return Folder_.filePath(name); }

    QStringList Entries() const {
        return QDir(Folder_.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }

  private:
    QString Before_ = QDir::currentPath();
    QTemporaryDir Folder_;
};

/// Gives up the administrator's rights for a while, which otherwise open every file.
class OrdinaryUser {
  public:
    OrdinaryUser() {
        if (Administrator_) {
            EXPECT_EQ(::setresuid(Nobody, Nobody, 0), 0);
        }
    }
    ~OrdinaryUser() {
        if (Administrator_) {
            EXPECT_EQ(::setresuid(0, 0, 0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

  private:
    static constexpr uid_t Nobody = 65534;
    const bool Administrator_ = ::getuid() == 0;
};

} // namespace Quillbox
