// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ColouringRules.h"
#include "state/LanguageDefinition.h"
#include "surfaces/LanguageRegistration.h"

#include <QHash>
#include <QObject>

#include <memory>

namespace Quillbox {

/// What a new registration of a name changed.
enum class LanguageChange { Everything, UserWordsOnly };

/// The registered languages. A definition is compiled once, whatever number of editors uses it.
class LanguageCatalogue final : public QObject, public LanguageRegistration {
    Q_OBJECT
  public:
    void RegisterLanguage(const QString &name, const LanguageDefinition &language) override;

    /// Null when nothing is registered under `name`.
    std::shared_ptr<const ColouringRules> FindRules(const QString &name) const;

  signals:
    /// After a definition that differs from the one before; editors that chose `name` follow.
    void LanguageChanged(const QString &name, Quillbox::LanguageChange change);

  private:
    struct Entry {
        LanguageDefinition Definition;
        std::shared_ptr<const ColouringRules> Rules;
    };

    QHash<QString, Entry> Entries_;
};

} // namespace Quillbox
