// Feeds arbitrary lines to the two tokenizers. The first byte chooses the tokenizer, custom
// delimiters (their count and bytes follow) and whether the text is repeated past the 32,767
// characters the cursor can reach. Every call must end, and the tokens must lie end to end in
// the text: the blank tokenizer leaves nothing out, the delimiter tokenizer skips exactly one
// delimiter after each token but the last.

#include "FuzzScratch.h"
#include "TextParser.h"

#include <cstdint>
#include <string>

namespace {
constexpr size_t kReachableLength = 32767;

enum Flags : uint8_t {
    UseExtended = 1,
    UseCustomDelimiters = 2,
    // Repeating is slow: only one flag byte in 64 asks for it.
    RepeatMask = 0xFC,
    RepeatPastReach = 0x40,
};

struct TokenizerInput
{
    uint8_t flags = 0;
    std::string delimiters;
    std::string text;
};

TokenizerInput inputFrom(const uint8_t *data, size_t size)
{
    TokenizerInput input;
    size_t i = 0;
    if (i < size)
        input.flags = data[i++];
    if ((input.flags & UseExtended) && (input.flags & UseCustomDelimiters) && i < size) {
        const size_t count = data[i++] % 4;
        for (; input.delimiters.size() < count && i < size; ++i)
            input.delimiters += static_cast<char>(data[i]);
    }
    input.text.assign(reinterpret_cast<const char *>(data + i), size - i);
    if ((input.flags & RepeatMask) == RepeatPastReach && !input.text.empty()) {
        const std::string piece = input.text;
        while (input.text.size() <= kReachableLength)
            input.text += piece;
    }
    return input;
}

// Reads every token with `first` then `next`, checking that each one sits at `offset` of the
// reachable text and that a tokenizer which consumes delimiters stepped over one.
template<typename Parser>
void checkTokens(Parser &parser, const std::string &text, const std::string &delimiters,
                 bool consumesDelimiter)
{
    const std::string reachable = text.substr(0, kReachableLength);
    std::string token;
    size_t offset = 0;
    size_t count = 0;
    bool more = parser.GetFirstToken(token);
    const std::string firstToken = token;
    while (more) {
        if (token.empty())
            invariantBroken("an empty token");
        if (reachable.compare(offset, token.size(), token) != 0)
            invariantBroken("token " + std::to_string(count + 1) + " is not the text at its place");
        offset += token.size();
        if (consumesDelimiter && offset < reachable.size()) {
            if (delimiters.find(reachable[offset]) == std::string::npos)
                invariantBroken("a token ends before a character that is no delimiter");
            ++offset;
        }
        if (++count > reachable.size())
            invariantBroken("more tokens than characters");
        more = parser.GetNextToken(token);
    }
    if (!token.empty())
        invariantBroken("the end of the text gives a token");
    if (offset != reachable.size())
        invariantBroken("the tokens leave out the end of the text");
    // A second pass from the start gives the same first token.
    std::string again;
    if (parser.GetFirstToken(again) != (count > 0) || again != firstToken)
        invariantBroken("GetFirstToken does not start again");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const TokenizerInput input = inputFrom(data, size);
    if (input.flags & UseExtended) {
        clsTextParserExt parser;
        parser.setCustomDelimiters(input.delimiters);
        parser.setText(input.text);
        if (parser.Text() != input.text)
            invariantBroken("Text() is not the text given");
        const std::string active
                = input.delimiters.empty() ? std::string(" ,\t") : input.delimiters;
        checkTokens(parser, input.text, active, true);
    } else {
        clsTextParser parser;
        parser.setText(input.text);
        if (parser.Text() != input.text)
            invariantBroken("Text() is not the text given");
        checkTokens(parser, input.text, " ", false);
        // Between tokens the cursor stays on the separating blank: every token after the first
        // starts with one.
        std::string token;
        bool more = parser.GetFirstToken(token);
        while (more && parser.GetNextToken(token)) {
            if (token[0] != ' ')
                invariantBroken("a later token does not start with its blank");
        }
    }
    return 0;
}
