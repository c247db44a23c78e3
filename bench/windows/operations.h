// What is measured: an operation of the library, of the plain edit control that it stands on, and of the system's own control for the
// same purpose where there is one.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// One side of an operation. Prepared before each burst, which is not measured, and played as often as the burst is long.
struct Side {
    std::string name;
    std::function<void()> prepare;
    std::function<void(int number)> play;
    void* window = nullptr;  // that is played on; its text tells whether what was typed has been taken
};

struct Operation {
    std::string name;
    int burst;                // how often it is played between two looks at the clock
    std::vector<Side> sides;  // the library's first, then what it is compared with
};

// The windows of the operations live as long as this does.
class Form;

std::vector<Operation> MakeOperations(Form& form);

// Bytes that the heaps of the process hold for one control more: the library's, a plain edit.
struct HeapBytes {
    double control;
    double edit;
};
HeapBytes MeasureHeap(Form& form);

}  // namespace bench
