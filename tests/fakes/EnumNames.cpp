// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/EnumNames.h"

#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/MainWindow.h"
#include "surfaces/Programs.h"

#include <array>
#include <string_view>
#include <utility>

namespace Quillbox {
namespace {

/// The largest number of an enumerator is below this.
constexpr std::size_t Values = 320;

/// The compiler says "... [with auto Value = Quillbox::ColorSlot::Text; ...", or a number in the
/// place of the name.
template <auto Value>
constexpr std::string_view Spelled() {
    const std::string_view function = __PRETTY_FUNCTION__;
    const std::size_t start = function.find("Value = ") + 8;
    const std::string_view value =
        function.substr(start, function.find_first_of(";]", start) - start);
    return value.front() == '(' ? std::string_view() : value.substr(value.rfind(':') + 1);
}

template <typename Enum, std::size_t... Numbers>
constexpr std::array<std::string_view, Values> Names(std::index_sequence<Numbers...>) {
    return {Spelled<static_cast<Enum>(Numbers)>()...};
}

} // namespace

template <typename Enum>
std::string NameOf(Enum value) {
    static constexpr auto names = Names<Enum>(std::make_index_sequence<Values>());
    const auto number = static_cast<std::size_t>(value);
    return number < Values && !names[number].empty() ? std::string(names[number])
                                                     : std::to_string(number);
}

template std::string NameOf(ColorSlot);
template std::string NameOf(FontStyleClass);
template std::string NameOf(EditorCommand);
template std::string NameOf(StatusPanel);
template std::string NameOf(NavigationList);
template std::string NameOf(WindowStyle);

} // namespace Quillbox
