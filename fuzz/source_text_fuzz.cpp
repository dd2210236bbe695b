// SPDX-License-Identifier: GPL-3.0-or-later
// Random bytes as a source text. Colouring it line by line, or again from any line on, gives the
// colours that colouring it at once gives; the scanner's tables and lists say the same; and neither
// takes longer than a second a megabyte.
#include "Fuzz.h"

#include "fakes/FakeEditor.h"
#include "fakes/FakeMainWindow.h"
#include "fakes/FakeSystem.h"
#include "language/ColouringRules.h"
#include "language/SymbolScanner.h"
#include "state/DocumentRegistry.h"
#include "state/settings.h"

#include <algorithm>
#include <ctime>

using namespace Quillbox;

namespace {

constexpr std::size_t TimedSize = 16 * 1024;
constexpr double SecondsPerByte = 1e-6;
constexpr int TimedTries = 50; ///< other programs may hold the processor up for some of them

LanguageDefinition Language() {
    LanguageDefinition language;
    language.SingleLineComment = QStringLiteral("//");
    language.MultiLineCommentStart = QStringLiteral("/*");
    language.MultiLineCommentEnd = QStringLiteral("*/");
    language.StringDelimiter = QStringLiteral("\"");
    language.Operators = QStringLiteral("+\n-\n*\n/\n=\n<\n>\n(\n)\n[\n]\n,\n^\n");
    language.Keywords = QStringLiteral("\nIf\nThen\nEnd\nType\nFunction\nPrint");
    return language;
}

/// Calls `visit` with each line and the place where the next one starts.
template <typename Visit>
void ForLines(std::string_view text, Visit visit) {
    for (std::size_t start = 0, line = 0; start <= text.size(); ++line) {
        const std::size_t feed = std::min(text.find('\n', start), text.size());
        if (!visit(static_cast<int>(line), text.substr(start, feed - start), feed + 1))
            return;
        start = feed + 1;
    }
}

/// An editor that shows a text and can do nothing else.
class TextOnly final : public FakeEditor {
  public:
    TextOnly(CallLog &log, FakeDisk &disk, std::string_view text)
        : FakeEditor(log, disk)
        , Text_(text) {}

    void VisitLines(const LineVisitor &visit) const override {
        ForLines(Text_, [&](int line, std::string_view bytes, std::size_t) {
            return visit({line}, bytes);
        });
    }

  private:
    std::string_view Text_;
};

class TextWindow final : public FakeDocumentWindow {
  public:
    TextWindow(CallLog &log, FakeDisk &disk, std::string_view text)
        : FakeDocumentWindow(log, disk)
        , Shown_(log, disk, text) {}
    EditorControl &Editor() override { return Shown_; }

  private:
    TextOnly Shown_;
};

void CheckColours(const ColouringRules &rules, std::string_view text) {
    std::vector<TextStyle> whole(text.size());
    std::vector<TextStyle> pieces(text.size());
    const ColouringState end = rules.Colour(text, ColouringState::Code, whole.data());
    ColouringState state = ColouringState::Code;
    std::size_t start = 0;
    ForLines(text, [&](int, std::string_view, std::size_t next) {
        next = std::min(next, text.size());
        state = rules.Colour(text.substr(start, next - start), state, pieces.data() + start);
        if (next > 0 && text[next - 1] == '\n')
            Require(StateAfter(pieces[next - 1]) == state);
        start = next;
        return start < text.size();
    });
    Require(state == end);
    Require(pieces == whole);
}

void CheckSymbols(std::string_view text) {
    CallLog log;
    FakeDisk disk;
    TextWindow window(log, disk, text);
    DocumentRegistry registry;
    registry.DocumentCount = 1;
    registry.CurrentIndex = 1;
    registry.Documents[1].Window = &window;
    registry.Documents[1].Scanning = true;
    Settings options;
    options.ShowFunctions = options.ShowTypes = true;
    FakeNavigationLists lists(log);
    FakeLanguageRegistration languages(log);
    FakeEventLoop events(log);
    LanguageDefinition language = Language();

    SymbolScanner(registry, options, lists, {language, languages}, events).ScanSymbols();

    const Document &document = registry.Documents[1];
    Require(!document.Scanning);
    const auto agree = [&](NavigationList list, const SymbolTexts &names) {
        const auto &items = lists.Items[list];
        Require(items.size() <= static_cast<std::size_t>(SymbolTexts::LastIndex) + 1);
        for (std::size_t item = 0; item < items.size(); ++item)
            Require(items[item] == names[static_cast<int>(item)]);
    };
    agree(NavigationList::Functions, document.FunctionNames);
    agree(NavigationList::Types, document.TypeNames);
    qsizetype words = languages.Registered.UserWords.count(u'\n');
    Require(words >= static_cast<qsizetype>(lists.Items[NavigationList::Functions].size()));
}

/// Processor time of `action`, the shortest of some tries unless the first is quick.
template <typename Action>
bool IsQuick(std::size_t bytes, Action action) {
    for (int attempt = 0; attempt < TimedTries; ++attempt) {
        const std::clock_t start = std::clock();
        action();
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        if (seconds <= static_cast<double>(bytes) * SecondsPerByte)
            return true;
    }
    return false;
}

/// The same bytes over and over, as slow places would show in a large text.
void CheckSpeed(const ColouringRules &rules, std::string_view text) {
    std::string large;
    while (large.size() < TimedSize)
        large += text;
    std::vector<TextStyle> styles(large.size());
    Require(
        IsQuick(large.size(), [&] { rules.Colour(large, ColouringState::Code, styles.data()); }));
    Require(IsQuick(large.size(), [&] { CheckSymbols(large); }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const ColouringRules rules(Language());
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    CheckColours(rules, text);
    CheckSymbols(text);
    if (size >= 8) // fewer bytes would be declarations and nothing else, which no person writes
        CheckSpeed(rules, text);
    return 0;
}
