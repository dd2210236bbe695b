// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the reference of the language into the help of the program folder. Nothing is written, and
// the exit code is 1, when the word files, the themes and the examples do not belong together.
#include "base/Windows1252Text.h"
#include "reference/Pages.h"
#include "reference/Sources.h"
#include "state/Language.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Quillbox;

namespace {

QByteArray ReadBytes(const QString &path, QStringList &problems) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems += QStringLiteral("%1 cannot be read.").arg(path);
        return {};
    }
    return file.readAll();
}

Reference ReadReference(const QDir &data, QStringList &problems) {
    const auto bytes = [&](const QString &name) {
        return ReadBytes(data.filePath(name), problems);
    };
    Reference reference;
    reference.Words = PairWords(FromWindows1252(bytes(SourceLanguage.KeywordFile)),
                                FromWindows1252(bytes(SourceLanguage.QuickHelpFile)), problems);
    reference.Themes =
        ReadThemes(QString::fromUtf8(bytes(QStringLiteral("Reference/Themes.txt"))), problems);
    const QDir examples(data.filePath(QStringLiteral("Ayuda/Ejemplos")));
    for (const QString &file :
         examples.entryList({QChar(u'*') + SourceLanguage.ExampleSuffix}, QDir::Files, QDir::Name))
        if (auto example = ReadExample(
                file, FromWindows1252(ReadBytes(examples.filePath(file), problems)), problems))
            reference.Examples.push_back(*example);
    problems += FindGaps(reference);
    return reference;
}

bool WritePage(const QDir &folder, const ReferencePage &page) {
    const QByteArray bytes = page.Html.toUtf8();
    QFile file(folder.filePath(page.File));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

bool WritePages(const QDir &folder, const Reference &reference) {
    if (!folder.mkpath(QStringLiteral(".")))
        return false;
    for (const ReferencePage &page : MakePages(reference))
        if (!WritePage(folder, page))
            return false;
    return true;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fputs("usage: ReferencePages DATA_FOLDER PAGE_FOLDER\n", stderr);
        return 2;
    }
    QStringList problems;
    const Reference reference = ReadReference(QDir(QString::fromLocal8Bit(argv[1])), problems);
    const QDir pages(QString::fromLocal8Bit(argv[2]));
    if (problems.isEmpty() && !WritePages(pages, reference))
        problems += QStringLiteral("The pages cannot be written into %1.").arg(pages.path());
    for (const QString &problem : problems)
        std::fprintf(stderr, "Reference: %s\n", qPrintable(problem));
    return problems.isEmpty() ? 0 : 1;
}
