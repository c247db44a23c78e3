// What a scenario is played on: one masked edit control, as its user and its program see it. The model is one such
// subject; the library's is chosen at link time, behind a window or without one.
#ifndef TESTS_MODEL_SUBJECT_H
#define TESTS_MODEL_SUBJECT_H

#include "model_control.h"

#include <memory>
#include <optional>
#include <string>

namespace model {

// How a control is made.
struct Config {
    std::string mask;
    Type type = kString;
    bool autoskip = false;
    unsigned increment = 0;  // with a spin when above 0
    std::string range = {};
    std::optional<std::string> codes = {};  // the spin's code table
    bool codeDisplay = false;               // values are shown through the code table
    bool codePick = false;                  // typed characters choose entries of the table
};

// What can be seen of a control, and what it has done since it was made.
struct State {
    std::string text;
    int start = 0;
    int end = 0;
    int beeps = 0;
    int autoskips = 0;
    int steps = 0;      // presses of Up and Down of which the parent was told
    bool drawn = true;  // redrawing is on
    bool modified = false;

    bool operator==(const State& other) const
    {
        return text == other.text && start == other.start && end == other.end && beeps == other.beeps &&
               autoskips == other.autoskips && steps == other.steps && drawn == other.drawn &&
               modified == other.modified;
    }
};

class Subject {
public:
    Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    virtual ~Subject() = default;

    // Regional settings, for all that follows.
    virtual void UseSettings(const Regional& regional) = 0;
    // A new control in place of the last one.
    virtual void Make(const Config& config) = 0;
    virtual State Look() = 0;

    // The user: a key is pressed and released, with its character between where it makes one.
    virtual void Enter(char c) = 0;
    virtual void Press(int key, bool shift) = 0;
    virtual void Click(int position) = 0;
    virtual void Paste(const std::string& clipboard) = 0;

    // The program.
    virtual void Select(int start, int end) = 0;
    virtual int SetMask(const char* mask, Type type) = 0;
    virtual void SetData(const char* text) = 0;  // canonical text; null for no data
    virtual void SetAutoskip(bool on) = 0;
    virtual void SetReadOnly(bool on) = 0;
    virtual void Enable(bool on) = 0;
    virtual Value Read() = 0;
    virtual Value Unformat(const std::string& text) = 0;
    virtual bool ReadRangeEnd(const std::string& text, Stamp& end) = 0;
    virtual bool OutOfOrder(const Stamp& first, const Stamp& second) = 0;
};

std::unique_ptr<Subject> MakeModel();

// The library's control, and how often each mask is played on it unless told otherwise: some seconds in all.
std::unique_ptr<Subject> MakeLibrary();
extern const unsigned kDefaultRounds;
extern const unsigned kPlayedOf;  // of the settings and controls one in so many is played, by the seed

}  // namespace model

#endif
