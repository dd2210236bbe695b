// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

namespace Quillbox {
namespace {

QStringList ItemsOf(const QString &value) {
    return value.simplified().split(u' ', Qt::SkipEmptyParts);
}

/// Reads the table line by line.
class ThemeTable {
  public:
    explicit ThemeTable(QStringList &problems)
        : Problems_(problems) {}

    void Take(const QString &line, qsizetype lineNumber) {
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            return;
        const bool understood = line.startsWith(u'|') ? TakeCode(line.mid(1)) : TakeValue(line);
        if (!understood)
            Problems_ += QStringLiteral("Themes.txt, line %1: \"%2\" is not understood here.")
                             .arg(lineNumber)
                             .arg(line);
    }

    std::vector<Theme> Themes;

  private:
    bool TakeCode(QString code) {
        if (Themes.empty() || Themes.back().Samples.empty())
            return false;
        if (code.startsWith(u' '))
            code.remove(0, 1);
        Themes.back().Samples.back().Lines += code;
        return true;
    }

    bool TakeValue(const QString &line) {
        const qsizetype colon = line.indexOf(u':');
        if (colon < 0)
            return false;
        const QString name = line.left(colon).trimmed();
        const QString value = line.mid(colon + 1).trimmed();
        if (name == QStringLiteral("tema")) {
            Themes.push_back({value, {}, {}, {}, {}, {}, {}});
            return !value.isEmpty();
        }
        return !Themes.empty() && SetField(Themes.back(), name, value);
    }

    static bool SetField(Theme &theme, const QString &name, const QString &value) {
        if (name == QStringLiteral("también"))
            theme.OtherKeys += ItemsOf(value);
        else if (name == QStringLiteral("grupo"))
            theme.Group = value;
        else if (name == QStringLiteral("título"))
            theme.Title = value;
        else if (name == QStringLiteral("introducción"))
            theme.Introduction = value;
        else if (name == QStringLiteral("palabras"))
            theme.Words += ItemsOf(value);
        else if (name == QStringLiteral("ejemplo"))
            theme.Samples.push_back({value, {}});
        else
            return false;
        return true;
    }

    QStringList &Problems_;
};

} // namespace

std::vector<Theme> ReadThemes(const QString &table, QStringList &problems) {
    ThemeTable reader(problems);
    const QStringList lines = table.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i)
        reader.Take(lines[i].endsWith(u'\r') ? lines[i].chopped(1) : lines[i], i + 1);
    return reader.Themes;
}

} // namespace Quillbox
