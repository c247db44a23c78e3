// The model's own single-line edit control: text, anchor and caret, and the keys that a plain edit knows.
// Stands for the system control underneath, with horizontal scrolling on and no text limit in reach.
#ifndef TESTS_MODEL_MODEL_EDIT_H
#define TESTS_MODEL_MODEL_EDIT_H

#include <algorithm>
#include <string>

namespace model {

constexpr int kBackspace = 0x08;
constexpr int kEnd = 0x23;
constexpr int kHome = 0x24;
constexpr int kLeft = 0x25;
constexpr int kUp = 0x26;
constexpr int kRight = 0x27;
constexpr int kDown = 0x28;
constexpr int kInsert = 0x2D;
constexpr int kDelete = 0x2E;

class PlainEdit {
public:
    const std::string& Text() const { return text_; }
    int Length() const { return static_cast<int>(text_.size()); }
    int Start() const { return std::min(anchor_, caret_); }
    int End() const { return std::max(anchor_, caret_); }

    void SetText(const std::string& text)
    {
        text_ = text;
        anchor_ = caret_ = 0;
    }

    void Select(int anchor, int caret)
    {
        anchor_ = std::clamp(anchor, 0, Length());
        caret_ = std::clamp(caret, 0, Length());
    }

    void Replace(const std::string& text)
    {
        const int start = Start();
        text_.replace(static_cast<size_t>(start), static_cast<size_t>(End() - start), text);
        anchor_ = caret_ = start + static_cast<int>(text.size());
    }

    void Key(int key, bool shift)
    {
        switch (key) {
        case kLeft:
        case kUp: Move(caret_ - 1, shift); break;
        case kRight:
        case kDown: Move(caret_ + 1, shift); break;
        case kHome: Move(0, shift); break;
        case kEnd: Move(Length(), shift); break;
        case kDelete: Erase(shift ? -1 : +1); break;
        default: break;
        }
    }

    void Char(char c)
    {
        if (c == '\b')
            Erase(-1);
        else if (static_cast<unsigned char>(c) >= ' ' && c != 127)
            Replace(std::string(1, c));
    }

private:
    void Move(int to, bool extend)
    {
        const int caret = std::clamp(to, 0, Length());
        Select(extend ? anchor_ : caret, caret);
    }

    void Erase(int step)
    {
        if (anchor_ == caret_)
            Select(caret_, caret_ + step);
        Replace("");
    }

    std::string text_;
    int anchor_ = 0;
    int caret_ = 0;
};

}  // namespace model

#endif
