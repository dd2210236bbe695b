// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/StructureReader.h"

namespace Quillbox {

std::optional<StructureMistake> FindStructureMistake(std::string_view source) {
    return StructureReader(source).Read();
}

StructureReader::StructureReader(std::string_view source)
    : Walk_(source) {}

std::optional<StructureMistake> StructureReader::Read() {
    while (Walk_.Current().Kind != TokenKind::FileEnd)
        ReadNext();
    Blocks_.CloseOneLineIfs();
    if (!Blocks_.IsEmpty()) {
        const Block &block = Blocks_.Innermost();
        Walk_.Report(block.LineNumber,
                     "falta " + ClosersOf(block.Opener) + " para el " + Described(block));
    }
    return Walk_.Mistake();
}

void StructureReader::ReadNext() {
    const Token &token = Walk_.Current();
    if (token.Kind == TokenKind::LineEnd)
        Blocks_.CloseOneLineIfs();
    if (Walk_.AtStatementEnd())
        Walk_.Advance();
    else if (Blocks_.IsInside(Keyword::Type) && token.Word != Keyword::Field &&
             token.Word != Keyword::EndType)
        Walk_.Report("dentro del " + Described(Blocks_.Innermost()) + " solo puede haber " +
                     Quoted(Keyword::Field));
    else
        ReadKeyword(token.Word);
}

void StructureReader::ReadKeyword(Keyword word) {
    switch (word) {
    case Keyword::If:
        return ReadIf();
    case Keyword::ElseIf:
    case Keyword::Else:
        return ReadElse(word);
    case Keyword::For:
        return ReadFor();
    case Keyword::Case:
    case Keyword::Default:
        return ReadBranch(word);
    case Keyword::Function:
    case Keyword::Type:
        return ReadDeclaration(word);
    case Keyword::While:
    case Keyword::Repeat:
    case Keyword::Select:
        return ReadBlockStart(word);
    case Keyword::Then:
        return ReportWithout(word, Keyword::If);
    case Keyword::To:
    case Keyword::Step:
        return ReportWithout(word, Keyword::For);
    case Keyword::Field:
        if (!RequireInside(Keyword::Type, word))
            return;
        break;
    default:
        if (OpenerOf(word) != Keyword::None)
            return ReadBlockEnd(word);
    }
    Walk_.PassPlainTokens();
}

void StructureReader::ReadIf() {
    const int lineNumber = Walk_.Current().LineNumber;
    PassWordAndExpression();
    PassThen();
    const BlockForm form = Walk_.AtStatementEnd() ? BlockForm::Closed : BlockForm::OneLine;
    Blocks_.Open({Keyword::If, lineNumber, form});
}

void StructureReader::ReadElse(Keyword word) {
    Blocks_.CloseOneLineIfsWithElse();
    if (!RequireInside(Keyword::If, word))
        return;
    NoteLastBranch(word);
    if (word == Keyword::Else)
        return Walk_.Advance();
    PassWordAndExpression();
    PassThen();
}

void StructureReader::ReadFor() {
    const int lineNumber = Walk_.Current().LineNumber;
    Walk_.PassPlainTokens();
    if (Walk_.Current().Word == Keyword::Each) {
        Walk_.Advance();
        Walk_.PassName();
    } else if (Walk_.Current().Word == Keyword::To) {
        PassWordAndExpression();
    } else {
        Walk_.Report("falta " + Quoted(Keyword::To) + " en el " + Quoted(Keyword::For));
    }
    if (Walk_.Current().Word == Keyword::Step)
        PassWordAndExpression();
    Blocks_.Open({Keyword::For, lineNumber});
}

void StructureReader::ReadBranch(Keyword word) {
    Blocks_.CloseOneLineIfsBesideTheirBlock();
    if (!RequireInside(Keyword::Select, word))
        return;
    if (word == Keyword::Case)
        return PassWordAndExpression();
    NoteLastBranch(word);
    Walk_.Advance();
}

void StructureReader::ReadDeclaration(Keyword word) {
    if (!Blocks_.IsEmpty())
        return ReportInside(word);
    const int lineNumber = Walk_.Current().LineNumber;
    Walk_.Advance();
    Walk_.PassName();
    if (word == Keyword::Function)
        Walk_.PassParameters();
    Blocks_.Open({word, lineNumber});
}

void StructureReader::ReadBlockStart(Keyword word) {
    const int lineNumber = Walk_.Current().LineNumber;
    if (word == Keyword::Repeat)
        Walk_.Advance();
    else
        PassWordAndExpression();
    Blocks_.Open({word, lineNumber});
}

// EndIf may also end a one-line If, so only the other words reach past it.
void StructureReader::ReadBlockEnd(Keyword word) {
    const Keyword opener = OpenerOf(word);
    if (opener != Keyword::If)
        Blocks_.CloseOneLineIfsBesideTheirBlock();
    if (Blocks_.IsEmpty())
        return ReportWithout(word, opener);
    if (!Blocks_.IsInside(opener))
        return Walk_.Report(Quoted(word) + " no cierra el " + Described(Blocks_.Innermost()));
    Blocks_.CloseInnermost();
    if (word == Keyword::Until)
        PassWordAndExpression();
    else
        Walk_.Advance();
}

void StructureReader::PassThen() {
    if (Walk_.Current().Word == Keyword::Then)
        Walk_.Advance();
}

void StructureReader::PassWordAndExpression() {
    Walk_.Advance();
    Walk_.PassExpression();
}

bool StructureReader::RequireInside(Keyword opener, Keyword word) {
    if (Blocks_.IsInside(opener))
        return true;
    if (Blocks_.IsEmpty())
        ReportWithout(word, opener);
    else
        ReportInside(word);
    return false;
}

void StructureReader::NoteLastBranch(Keyword word) {
    Block &block = Blocks_.Innermost();
    if (block.HasLastBranch)
        Walk_.Report(Quoted(word) + " sobra en el " + Described(block));
    block.HasLastBranch = word == Keyword::Else || word == Keyword::Default;
}

void StructureReader::ReportWithout(Keyword word, Keyword opener) {
    Walk_.Report(Quoted(word) + " sin " + Quoted(opener));
}

void StructureReader::ReportInside(Keyword word) {
    Walk_.Report(Quoted(word) + " dentro del " + Described(Blocks_.Innermost()));
}

} // namespace Quillbox
