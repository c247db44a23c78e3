#include "bench/windows/scale.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench/windows/clock.h"
#include "bench/windows/form.h"

namespace bench {
namespace {

constexpr int kRounds = 11;
constexpr int kKeys = 40;

struct Kind {
    const char* mask;
    int32_t type;
    const char* data;
};

// What a form of an office is made of.
constexpr Kind kKinds[] = {
    {"MM/DD/YYYY",     DT_DATE,    "1995-07-04"},
    {"#,##0.00",       DT_NUMBER,  "1234.5"    },
    {"(###) ###-####", DT_STRING,  "5551234567"},
    {"HH:MM:SS",       DT_TIME,    "14:07:09"  },
    {"#,##0.00",       DT_DECIMAL, "1234.50"   },
};

const Kind& KindOf(int number)
{
    return kKinds[static_cast<size_t>(number) % std::size(kKinds)];
}

std::vector<HWND> MakeControls(const Form& form, int count, Visibility visibility)
{
    std::vector<HWND> controls;
    for (int i = 0; i < count; ++i)
        controls.push_back(form.MakeControl(KindOf(i).mask, KindOf(i).type, visibility));
    return controls;
}

void FillControls(const std::vector<HWND>& controls)
{
    for (size_t i = 0; i < controls.size(); ++i)
        ZTE_FmtSetDataString(controls[i], KindOf(static_cast<int>(i)).data);
}

void Destroy(const std::vector<HWND>& windows)
{
    for (HWND window : windows)
        DestroyWindow(window);
}

// The first control of a form is a date.
void TypeDates(HWND control)
{
    SetFocus(control);
    for (int i = 0; i < kKeys; ++i) {
        if (i % 8 == 0)
            SendMessageA(control, EM_SETSEL, 0, 0);
        TypeKey(control, "07041995"[i % 8]);
    }
}

void SetAndGet(const Form& form, HWND control)
{
    for (int i = 0; i < kKeys; ++i) {
        ZTE_FmtSetDataString(control, i % 2 ? "1995-07-04" : "1995-07-05");
        SharedHeapFree(form.Heap(), ZTE_FmtGetData(control));
    }
}

struct FormTimes {
    std::vector<double> made;
    std::vector<double> filled;
    std::vector<double> key;
    std::vector<double> setAndGet;
    std::vector<double> destroyed;
};

void MeasureOnce(int count, FormTimes& times)
{
    const Form form;
    std::vector<HWND> controls;
    times.made.push_back(Microseconds([&] { controls = MakeControls(form, count, Visibility::Hidden); }) / count);
    times.filled.push_back(Microseconds([&] { FillControls(controls); }) / count);
    times.key.push_back(Microseconds([&] { TypeDates(controls[0]); }) / kKeys);
    times.setAndGet.push_back(Microseconds([&] { SetAndGet(form, controls[0]); }) / kKeys);
    times.destroyed.push_back(Microseconds([&] { Destroy(controls); }) / count);
}

// Opened: made and shown; the form's own window is there already and stays the same for both.
double OpenControls(int count)
{
    const Form form;
    std::vector<HWND> controls;
    const double opened = Microseconds([&] {
        controls = MakeControls(form, count, Visibility::Visible);
        FillControls(controls);
        Paint(form.Window());
    });
    Destroy(controls);
    return opened;
}

double OpenPickers(int count)
{
    const Form form;
    std::vector<HWND> pickers;
    SYSTEMTIME day = {};
    day.wYear = 1995;
    day.wMonth = 7;
    day.wDay = 4;
    const double opened = Microseconds([&] {
        for (int i = 0; i < count; ++i)
            pickers.push_back(form.MakePicker(Visibility::Visible));
        for (HWND picker : pickers)
            DateTime_SetSystemtime(picker, GDT_VALID, &day);
        Paint(form.Window());
    });
    Destroy(pickers);
    return opened;
}

}  // namespace

void MeasureForms()
{
    for (const int count : {1, 100, 2000}) {
        FormTimes times;
        for (int round = 0; round < (count > 1000 ? 3 : kRounds); ++round)
            MeasureOnce(count, times);
        std::printf("scale|%d|%.1f|%.1f|%.1f|%.1f|%.1f\n", count, Median(times.made), Median(times.filled),
                    Median(times.key), Median(times.setAndGet), Median(times.destroyed));
        std::fflush(stdout);
    }
}

void MeasureMixedForm()
{
    constexpr int kControls = 200;
    std::vector<double> controls;
    std::vector<double> pickers;
    OpenPickers(1);
    for (int round = 0; round < kRounds; ++round) {
        controls.push_back(OpenControls(kControls));
        pickers.push_back(OpenPickers(kControls));
    }
    std::printf("form|%.1f|%.1f|%.2f\n", Median(controls) / 1000, Median(pickers) / 1000,
                Median(controls) / Median(pickers));
}

}  // namespace bench
