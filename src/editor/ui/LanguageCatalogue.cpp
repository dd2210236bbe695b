// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/LanguageCatalogue.h"

namespace Quillbox {

namespace {

bool DifferInUserWordsOnly(LanguageDefinition one, const LanguageDefinition &other) {
    one.UserWords = other.UserWords;
    return one == other;
}

} // namespace

void LanguageCatalogue::RegisterLanguage(const QString &name, const LanguageDefinition &language) {
    const auto known = Entries_.constFind(name);
    LanguageChange change = LanguageChange::Everything;
    if (known != Entries_.constEnd()) {
        if (known->Definition == language)
            return;
        if (DifferInUserWordsOnly(known->Definition, language))
            change = LanguageChange::UserWordsOnly;
    }
    Entries_.insert(name, {language, std::make_shared<const ColouringRules>(language)});
    emit LanguageChanged(name, change);
}

std::shared_ptr<const ColouringRules> LanguageCatalogue::FindRules(const QString &name) const {
    return Entries_.value(name).Rules;
}

} // namespace Quillbox
