// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/CommandLine.h"

namespace Quillbox {

namespace {

bool IsBlank(QChar character) { return character == u' ' || character == u'\t'; }

qsizetype SkipBlanks(const QString &text, qsizetype place) {
    while (place < text.size() && IsBlank(text[place]))
        ++place;
    return place;
}

bool IsQuoteAt(const QString &text, qsizetype place) {
    return place < text.size() && text[place] == u'"';
}

/// Reads one argument after the other.
struct ArgumentReader {
    const QString &Text;
    qsizetype Place = 0;
    bool InQuotes = false;

    QString Next() {
        QString argument;
        InQuotes = false;
        while (Place < Text.size() && (InQuotes || !IsBlank(Text[Place]))) {
            if (Text[Place] == u'\\')
                TakeBackslashes(argument);
            else if (Text[Place] == u'"')
                TakeQuote(argument);
            else
                argument += Text[Place++];
        }
        return argument;
    }

    void TakeBackslashes(QString &argument) {
        const qsizetype start = Place;
        while (Place < Text.size() && Text[Place] == u'\\')
            ++Place;
        const qsizetype count = Place - start;
        if (!IsQuoteAt(Text, Place)) {
            argument += QString(count, u'\\');
            return;
        }
        argument += QString(count / 2, u'\\');
        if (count % 2 == 1)
            argument += Text[Place++];
    }

    void TakeQuote(QString &argument) {
        const bool doubled = InQuotes && IsQuoteAt(Text, Place + 1);
        if (doubled)
            argument += u'"';
        else
            InQuotes = !InQuotes;
        Place += doubled ? 2 : 1;
    }
};

std::vector<ProgramCall> QuotedCall(const QString &text) {
    const qsizetype found = text.indexOf(u'"', 1);
    const qsizetype end = found < 0 ? text.size() : found;
    if (end <= 1)
        return {};
    return {{text.mid(1, end - 1), text.mid(end + 1)}};
}

} // namespace

QStringList SplitArguments(const QString &text) {
    QStringList arguments;
    ArgumentReader reader{text};
    for (;;) {
        reader.Place = SkipBlanks(text, reader.Place);
        if (reader.Place == text.size())
            return arguments;
        arguments += reader.Next();
    }
}

std::vector<ProgramCall> ProgramCalls(const QString &commandLine) {
    const QString text = commandLine.mid(SkipBlanks(commandLine, 0));
    if (text.startsWith(u'"'))
        return QuotedCall(text);
    std::vector<ProgramCall> calls;
    for (qsizetype end = 1; end <= text.size(); ++end) {
        const bool endsWord = end == text.size() || IsBlank(text[end]);
        if (endsWord && !IsBlank(text[end - 1]))
            calls.push_back({text.left(end), text.mid(end)});
    }
    return calls;
}

} // namespace Quillbox
