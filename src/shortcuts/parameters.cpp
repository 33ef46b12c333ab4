#include "shortcuts/parameters.h"

namespace quill {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

class Splitter {
public:
    explicit Splitter(std::string_view text) : rest_(text) {}

    // False when there is no further word, or a quote that does not end.
    bool NextWord(std::string& word) {
        while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
        if (rest_.empty()) return false;
        while (!rest_.empty() && !IsBlank(rest_.front()) && !open_) TakePiece(word);
        return !open_;
    }
    bool QuoteOpen() const { return open_; }

private:
    void TakePiece(std::string& word) {
        const char c = Take();
        if (c == '\'')
            TakeSingleQuoted(word);
        else if (c == '"')
            TakeDoubleQuoted(word);
        else if (c == '\\')
            TakeEscaped(word);
        else
            word += c;
    }

    char Take() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    void TakeSingleQuoted(std::string& word) {
        const auto end = rest_.find('\'');
        open_ = end == std::string_view::npos;
        if (open_) return;
        word += rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
    }

    void TakeDoubleQuoted(std::string& word) {
        while (!rest_.empty()) {
            const char c = Take();
            if (c == '"') return;
            const bool escapes =
                c == '\\' && !rest_.empty() && Escapable.find(rest_.front()) != Escapable.npos;
            if (escapes)
                TakeEscaped(word);
            else
                word += c;
        }
        open_ = true;
    }

    // A backslash before a line end joins the lines; one at the very end stands for itself.
    void TakeEscaped(std::string& word) {
        if (rest_.empty()) {
            word += '\\';
            return;
        }
        const char c = Take();
        if (c != '\n') word += c;
    }

    static constexpr std::string_view Escapable = "$`\"\\\n";
    std::string_view rest_;
    bool open_ = false;
};

} // namespace

Result<std::vector<std::string>> SplitParameters(std::string_view text) {
    std::vector<std::string> words;
    Splitter splitter(text);
    for (std::string word; splitter.NextWord(word); word.clear()) words.push_back(word);
    if (splitter.QuoteOpen()) return Failure{Reason::Damaged, "A quote in the parameters is not closed"};
    return words;
}

} // namespace quill
