// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/EnumNames.h"

#include <QString>

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// Lets a failed comparison show its texts as texts. The test library looks beside the type.
inline void PrintTo(const QString &text, std::ostream *stream) {
    *stream << '"' << text.toStdString() << '"';
}

namespace Quillbox {

/// What the rules asked of all fakes of a test, in order: "tabs.AddTab 2 juego.prg".
class CallLog {
  public:
    template <typename... Parts>
    void Add(const std::string &call, const Parts &...parts) {
        std::string entry = call;
        ((entry += ' ' + Text(parts)), ...);
        Calls_.push_back(entry);
    }

    const std::vector<std::string> &Calls() const { return Calls_; }

    /// Only the calls of these fakes or these operations: {"tabs.", "window.Close"}.
    std::vector<std::string> CallsOf(std::initializer_list<std::string_view> beginnings) const {
        std::vector<std::string> chosen;
        for (const std::string &call : Calls_)
            for (const std::string_view beginning : beginnings)
                if (call.starts_with(beginning))
                    chosen.push_back(call);
        return chosen;
    }

    void Clear() { Calls_.clear(); }

  private:
    static std::string Text(const QString &value) { return value.toStdString(); }
    static std::string Text(const std::string &value) { return value; }
    static std::string Text(const char *value) { return value; }
    static std::string Text(bool value) { return value ? "true" : "false"; }
    static std::string Text(int value) { return std::to_string(value); }
    template <typename Enum>
    requires std::is_enum_v<Enum>
    static std::string Text(Enum value) { return NameOf(value); }

    std::vector<std::string> Calls_;
};

} // namespace Quillbox
