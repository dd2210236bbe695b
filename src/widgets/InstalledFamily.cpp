// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/InstalledFamily.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>

namespace Quillbox {

QString InstalledFamily(const QString &name) {
    if (QFontDatabase::hasFamily(name))
        return name;
    QFont font(name);
    font.setStyleHint(QFont::Monospace);
    const QFontInfo found(font);
    return found.fixedPitch() ? found.family()
                              : QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

} // namespace Quillbox
