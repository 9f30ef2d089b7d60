// Any text cut into tokens, and read as a statement and as the condition of a find, without any table.
#include "platform/dao/jet_lexer.h"
#include "platform/dao/jet_parser.h"
#include "tests/fuzz/fuzz_input.h"

namespace {

/// The tokens follow one another, and nothing but blanks is between them.
void expectWhole(const QString &text, const std::vector<JetToken> &tokens) {
    qsizetype at = 0;
    for (const JetToken &token : tokens) {
        fuzz::expect(at <= token.begin && token.begin <= token.end, "tokens stand in their order");
        for (; at < token.begin; ++at)
            fuzz::expect(text[at].isSpace(), "no character is lost");
        const bool isEnd = token.kind == JetToken::Kind::End;
        fuzz::expect((token.begin == token.end) == isEnd, "only the end is empty");
        fuzz::expect(isEnd == (&token == &tokens.back()), "the last token is the end");
        at = token.end;
    }
    fuzz::expect(at == text.size(), "no character is left");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    expectWhole(text, jetTokens(text));
    fuzz::allowing({3075, 3093, 3095, 3096, 3122, 3131, 3132, 3138, 3141, 3142, 3143, 3306, 3360},
                   [&] { JetParser::statement(text); });
    fuzz::allowing({3077, 3360}, [&] { JetParser::criterion(text); });
    return 0;
}
