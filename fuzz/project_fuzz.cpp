// SPDX-License-Identifier: GPL-3.0-or-later
// Random bytes as a project file and as packed texts: a saved project is read back as it was and a
// second saving changes nothing; what was unpacked once comes back after packing.
#include "base/AnsiText.h"
#include "base/ProfileText.h"
#include "project/PackedLists.h"
#include "project/ProjectFile.h"
#include "state/Project.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace Quillbox;

namespace {

void Require(bool holds) {
    if (!holds)
        std::abort();
}

/// One profile file in memory, read and written by the same rules as those of the disk.
class ProfileInMemory final : public PrivateProfile {
  public:
    explicit ProfileInMemory(const QByteArray &content)
        : Content(content) {}

    QByteArray Content;

    QString ReadString(const QString &section, const QString &key, const QString &defaultValue,
                       int capacity, const QString &) override {
        const auto value = FindProfileValue(Content, ToAnsi(section), ToAnsi(key));
        const QString text = (value ? FromAnsi(*value) : defaultValue).left(capacity - 1);
        const qsizetype nul = text.indexOf(QChar(u'\0'));
        return nul < 0 ? text : text.left(nul);
    }
    bool WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                      const QString &) override {
        for (const auto &[key, value] : values)
            Content = WithProfileValue(Content, ToAnsi(section), ToAnsi(key), ToAnsi(value));
        return true;
    }
};

Project ReadFrom(ProfileInMemory &profile) {
    Project project;
    project.File = QStringLiteral("juego.fp");
    ReadProject(project, profile);
    return project;
}

/// A value that stands in quotes loses another pair with every reading, one with blanks at its ends
/// loses them.
bool ComesBack(const QString &value) {
    const QByteArray bytes = ToAnsi(value);
    const bool quoted = bytes.size() > 1 && bytes.front() == bytes.back() &&
                        (bytes.front() == '"' || bytes.front() == '\'');
    return !quoted && WithoutBlanksAround(bytes) == bytes;
}

void CheckFile(const QByteArray &content) {
    ProfileInMemory profile(content);
    const Project project = ReadFrom(profile);
    WriteProject(project, profile);
    const QByteArray once = profile.Content;
    const Project again = ReadFrom(profile);
    for (const ProjectKey &key : ProjectKeys())
        Require(!ComesBack(project.*key.Field) || again.*key.Field == project.*key.Field);
    WriteProject(project, profile);
    Require(profile.Content == once);
}

void CheckPackedTexts(const QString &text) {
    Require(PackOtherSources(UnpackOtherSources(text)) == text);
    const std::vector<Task> tasks = UnpackToDoList(text);
    const QString packed = PackToDoList(tasks);
    Require(UnpackToDoList(packed) == tasks);
    Require(PackToDoList(UnpackToDoList(packed)) == packed);
    Require(std::none_of(tasks.begin(), tasks.end(),
                         [](const Task &task) { return task.Description.contains(u'|'); }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    CheckFile(content);
    CheckFile("[Proyecto]\r\nToDoList=" + content);
    CheckPackedTexts(FromAnsi(content));
    return 0;
}
