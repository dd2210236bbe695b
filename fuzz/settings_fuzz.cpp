// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever stands in the settings file, it is read or refused with run-time error 6; settings that
// were read come back after writing, and writing them again changes nothing.
#include "Fuzz.h"
#include "ProfileInMemory.h"

#include "base/RuntimeError.h"
#include "state/settings.h"

using namespace Quillbox;

namespace {

std::optional<Settings> FindSettings(ProfileInMemory &profile) {
    Settings settings;
    try {
        SettingsStore(QStringLiteral("/"), settings, profile).LoadSettings();
    } catch (const RuntimeError &error) {
        Require(error.Number == Overflow().Number);
        return std::nullopt;
    }
    return settings;
}

void RequireSame(const Settings &one, const Settings &other) {
    for (const SettingsEntry &entry : SettingsEntries())
        std::visit(
            [&](auto field) {
                bool comesBack = true;
                if constexpr (std::is_same_v<decltype(field), QString Settings::*>)
                    comesBack = ComesBack(one.*field);
                Require(!comesBack || one.*field == other.*field);
            },
            entry.Field);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    ProfileInMemory profile(BytesOf(data, size));
    std::optional<Settings> settings = FindSettings(profile);
    if (!settings)
        return 0;
    SettingsStore(QStringLiteral("/"), *settings, profile).SaveSettings();
    const QByteArray once = profile.Content;
    const std::optional<Settings> again = FindSettings(profile);
    Require(again.has_value());
    RequireSame(*settings, *again);
    SettingsStore(QStringLiteral("/"), *settings, profile).SaveSettings();
    Require(profile.Content == once);
    return 0;
}
