// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

struct LanguageDefinition;

/// The editor control's global object: registered languages by name.
class LanguageRegistration {
  public:
    virtual ~LanguageRegistration() = default;

    /// Registers `language` under `name`, or again; every editor that has chosen the name follows.
    /// An unchanged definition costs nothing.
    virtual void RegisterLanguage(const QString &name, const LanguageDefinition &language) = 0;
};

} // namespace Quillbox
