// What keys, acts and the mouse leave of dates, times, strings and code tables in modern editing.
#include "tests/support/modern_rows.h"

#include <algorithm>
#include <iterator>

namespace zttest::typing {

void PrintTo(const TypingRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << (row.before ? row.before : "") << "\": " << row.keys;
}

namespace {

struct ActKey {
    const char* act;
    const char* key;
};

constexpr ActKey kActKeys[] = {
    {"Bs",        "{Back}"      },
    {"CtrlBs",    "{Ctrl+Back}" },
    {"Del",       "{Del}"       },
    {"CtrlDel",   "{Ctrl+Del}"  },
    {"ShiftDel",  "{Shift+Del}" },
    {"ShiftIns",  "{Shift+Ins}" },
    {"Left",      "{Left}"      },
    {"Right",     "{Right}"     },
    {"CtrlLeft",  "{Ctrl+Left}" },
    {"CtrlRight", "{Ctrl+Right}"},
    {"Home",      "{Home}"      },
    {"End",       "{End}"       },
    {"Up",        "{Up}"        },
    {"Down",      "{Down}"      },
    {"PageUp",    "{PgUp}"      },
    {"PageDown",  "{PgDn}"      },
    {"All",       "{Ctrl+A}"    },
    {"CtrlV",     "{Ctrl+V}"    },
    {"CtrlX",     "{Ctrl+X}"    },
    {"CtrlY",     "{Ctrl+Y}"    },
    {"CtrlZ",     "{Ctrl+Z}"    },
    {"Escape",    "{Esc}"       },
    {"Cut",       "{Ctrl+X}"    },
};

// clang-format off
const TypingRow kDateRows[] = {
    // first digits begin, pad, or wait
    {kUs, nullptr, "07042024",               "07/04/2024|"},
    {kUs, nullptr, "07/04/2024",             "07/04/2024|"},
    {kUs, nullptr, "7/4/2024",               "07/04/2024|"},
    {kUs, nullptr, "742024",                 "07/04/2024|"},
    {kUs, nullptr, "7-4.2024",               "07/04/2024|"},
    {kUs, nullptr, "7 4 2024",               "07/04/2024|"},
    {kUs, nullptr, "4",                      "04/|  /    "},
    {kUs, nullptr, "1",                      "1| /  /    "},
    {kUs, nullptr, "1/",                     "01/|  /    "},
    {kUs, nullptr, "1-",                     "01/|  /    "},
    {kUs, nullptr, "12//",                   "12/  /|    "},
    {kUs, nullptr, "12",                     "12/|  /    "},
    {kUs, nullptr, "13",                     "1| /  /    ", "out of bounds"},
    {kUs, nullptr, "00",                     "0| /  /    ", "out of bounds"},
    {kUs, nullptr, "0/",                     "0 /|  /    "},
    {kUs, nullptr, "0732",                   "07/3| /    ", "out of bounds"},
    {kUs, nullptr, "0700",                   "07/0| /    ", "out of bounds"},
    {kUs, nullptr, "x",                      "|  /  /    ", "wrong kind"},
    {kUs, nullptr, "07x04",                  "07/04/|    ", "wrong kind"},
    {kUs, nullptr, "070420241",              "07/04/2024|", "full"},
    {kUs, nullptr, "02302023",               "02/30/2023|"},
    {kUs, nullptr, "04312023",               "04/31/2023|"},
    {kUs, nullptr, "02292024",               "02/29/2024|"},
    {kShort, nullptr, "022924",              "02/29/24|"},
    {kShort, nullptr, "022923",              "02/29/23|"},
    {kFramed, nullptr, "(070424)",           "(07/04/24)|"},
    {kFramed, nullptr, "07/04/24",           "(07/04/24)|"},
    // what is left is completed
    {kUs, nullptr, "1{Blur}",                "0|1/  /    "},
    {kUs, nullptr, "1{Right}",               "01/|  /    "},
    {kUs, nullptr, "1{Down}",                "01/|  /    "},
    {kUs, nullptr, "12/3{Up}{Up}",           "1|2/03/    "},
    {kUs, nullptr, "123{Home}",              "|12/03/    "},
    {kUs, nullptr, "123{Click0}",            "|12/03/    "},
    {kUs, nullptr, "1/2/9{Blur}",            "01/02/2|009"},
    {kUs, nullptr, "1/2/99{Blur}",           "01/02/19|99"},
    {kUs, nullptr, "1/2/24{Blur}",           "01/02/20|24"},
    {kUs, nullptr, "1/2/49{Blur}",           "01/02/20|49"},
    {kUs, nullptr, "1/2/50{Blur}",           "01/02/19|50"},
    {kUs, nullptr, "1/2/202{Blur}",          "01/02/202| "},
    {kUs, nullptr, "0{Blur}",                "0| /  /    "},
    {kUs, nullptr, "1{Del}",                 "01/|  /    "},
    {kUs, nullptr, "1{CtrlDel}",             "01/|  /    "},
    {kUs, "1| /31/1999", "{Del}",            "01/|1 /1999"},
    {kUs, "12/|3 /1999", "{Bs}",             "1| /03/1999"},
    {kUs, "|7 /31/1999", "/",                "07/|31/1999"},
    {kUs, "12/31/2   |", "x",                "12/31/2   |", "wrong kind"},
    {kDayOfYear, nullptr, "7/2024",          "007/2024|"},
    {kDayOfYear, nullptr, "1862024",         "186/2024|"},
    {kDayOfYear, nullptr, "992024",          "099/2024|"},
    {kDayOfYear, nullptr, "367",             "36| /    ", "out of bounds"},
    {kDayOfYear, nullptr, "000",             "00| /    ", "out of bounds"},
    // over another date
    {kUs, "|12/31/1999", "02292024",         "02/29/2024|"},
    {kUs, "|12/31/1999", "2/29/2024",        "02/29/2024|"},
    {kUs, "|12/31/1999", "1",                "1| /31/1999"},
    {kUs, "|12/31/1999", "4",                "04/|31/1999"},
    {kUs, "12/31/|1999", "2",                "12/31/2|   "},
    {kUs, "1|2/31/1999", "1",                "11/|31/1999"},
    {kUs, "12/31/1|999", "2",                "12/31/12|99"},
    {kDayOfYear, "3|65/2024", "6",           "36|5/2024"},
    {kDayOfYear, "3|65/2024", "7",           "037/|2024"},
    {kUs, "1|2/31/1999", "3",                "1|2/31/1999", "out of bounds"},
    {kUs, "0|7/31/1999", "0",                "0|7/31/1999", "out of bounds"},
    {kUs, "12/3|1/1999", "2",                "12/3|1/1999", "out of bounds"},
    {kUs, "12/3|1/1999", "0",                "12/30/|1999"},
    {kUs, "12/31/|1999", "/",                "12/31/|1999", "wrong kind"},
    {kUs, "12/31/1999|", "0",                "12/31/1999|", "full"},
    {kUs, "[12/31/1999]", "7",               "07/|  /    "},
    {kUs, "[12]/31/1999", "1",               "1| /31/1999"},
    {kUs, "12/[31]/1999", "4",               "12/04/|1999"},
    {kUs, "12/[31/19]99", "4",               "12/04/|99  "},
    {kUs, "[12/31/1999]", "x",               "[12/31/1999]", "wrong kind"},
    {kUs, "[12/31/1999]", "\x02",            "[12/31/1999]", "wrong kind"},
    {kUs, "[12/31/1999]", "{Escape}",        "[12/31/1999]"},
    {kUs, "[12/31/1999]", "{ReadOnly}7",     "[12/31/1999]", "read-only"},
    {kUs, "junk|", "7",                      "07/|  /    "},
    {kBoth, nullptr, "7/4/2024 13:30",       "07/04/2024 13:30|"},
    {kBoth, nullptr, "070420241330",         "07/04/2024 13:30|"},
    {kBoth, nullptr, "7 4 24 9 5{Blur}",     "07/04/2024 09:0|5"},
    // names of months
    {kNamed, nullptr, "4jul2024",            "04-JUL-2024|"},
    {kNamed, nullptr, "04-JUL-2024",         "04-JUL-2024|"},
    {kNamed, nullptr, "4dec2024",            "04-DEC-2024|"},
    {kNamed, nullptr, "4d2024",              "04-DEC-2024|"},
    {kNamed, nullptr, "4-7-2024",            "04-JUL-2024|"},
    {kNamed, nullptr, "412 2024",            "04-DEC-2024|"},
    {kNamed, nullptr, "41-2024",             "04-JAN-2024|"},
    {kNamed, nullptr, "413",                 "04-1|  -    ", "out of bounds"},
    {kNamed, nullptr, "4j",                  "04-J|  -    "},
    {kNamed, nullptr, "4j-",                 "04-JAN-|    "},
    {kNamed, nullptr, "4ju-",                "04-JUN-|    "},
    {kNamed, nullptr, "4j{Blur}",            "04-J|AN-    "},
    {kNamed, nullptr, "4x",                  "04-|   -    ", "wrong kind"},
    {kNamed, nullptr, "4jx",                 "04-J|  -    ", "wrong kind"},
    {kNamed, "04-|JUL-2024", "may",          "04-MAY-|2024"},
    {kNamed, "04-|JUL-2024", "m",            "04-M|  -2024"},
    {kNamed, "04-JUL|-2024", "{Bs}",         "04-JU| -2024"},
    {kNamed, "04-[JUL]-2024", "s",           "04-SEP-|2024"},
};

const TypingRow kTimeRows[] = {
    {kTime, nullptr, "1330",                 "13:30|"},
    {kTime, nullptr, "13:30",                "13:30|"},
    {kTime, nullptr, "0000",                 "00:00|"},
    {kTime, nullptr, "9:5{Blur}",            "09:0|5"},
    {kTime, nullptr, "24",                   "2| :  ", "out of bounds"},
    {kTime, nullptr, "96",                   "09:06|"},
    {kTime, nullptr, "960",                  "09:06|", "full"},
    {kTime, "|13:30", "0905",                "09:05|"},
    {kTime, "|13:30", "2",                   "2| :30"},
    {kTime, "1|3:30", "9",                   "19:|30"},
    {kTime, "13:|30", "6",                   "13:06|"},
    {kFraction, nullptr, "1330455{Blur}",    "13:30:45.5|00"},
    {kFraction, nullptr, "13:30:45.05{Blur}", "13:30:45.05|0"},
    {kFraction, nullptr, "133045123",        "13:30:45.123|"},
    // twelve hours
    {kHalves, nullptr, "1330",               "01:30 |PM"},
    {kHalves, nullptr, "0030",               "12:30 |AM"},
    {kHalves, nullptr, "0130",               "01:30 |AM"},
    {kHalves, nullptr, "1130",               "11:30 |AM"},
    {kHalves, nullptr, "1230",               "12:30 |PM"},
    {kHalves, nullptr, "0130p",              "01:30 PM|"},
    {kHalves, nullptr, "0130P",              "01:30 PM|"},
    {kHalves, nullptr, "1:30 PM",            "01:30 PM|"},
    {kHalves, nullptr, "1:30pm",             "01:30 PM|"},
    {kHalves, nullptr, "01:30 PM",           "01:30 PM|"},
    {kHalves, nullptr, "12:00 am",           "12:00 AM|"},
    {kHalves, nullptr, "p0130",              "01:30 |PM"},
    {kHalves, nullptr, "1p:30",              "01:30 |PM"},
    {kHalves, nullptr, "24",                 "2| :     ", "out of bounds"},
    {kHalves, nullptr, "0130x",              "01:30 |AM", "wrong kind"},
    {kHalves, "|01:30 PM", "0245",           "02:45 |PM"},
    {kHalves, "|01:30 PM", "1245",           "12:45 |PM"},
    {kHalves, "|01:30 AM", "1245",           "12:45 |AM"},
    {kHalves, "|01:30 AM", "1445",           "02:45 |PM"},
    {kHalves, "|01:30 PM", "0045",           "12:45 |AM"},
    {kHalves, "01:3|0 PM", "a",              "01:3|0 AM"},
    {kHalves, "01:30 |PM", "A",              "01:30 AM|"},
    {kHalves, "01:30 PM|", "a",              "01:30 AM|"},
    {kHalves, "01:30 AM|", "pm",             "01:30 PM|"},
    {kHalfFirst, "AM 01:30|", "p",           "PM 01:30|"},
    {kHalfFirst, "AM |2 :30", "{Bs}",        "|   02:30"},
    {kHalfFirst, "   |2 :30", "{Bs}",        "|AM 02:30"},
    {kHalves, "01:30 PM|", "{Bs}",           "01:30 |  "},
    {kHalves, "01:30 |PM", "{Del}",          "01:30 |  "},
    {kHalves, "[01:30 PM]", "2",             "2| :     "},
    {kDotted, nullptr, "1:30p.m.",           "01:30 p.m.|"},
    {kDotted, nullptr, "1330",               "01:30 |p.m."},
    {kHalfFirst, nullptr, "p0130",           "PM 01:30|"},
    {kHalfFirst, nullptr, "PM 01:30",        "PM 01:30|"},
};

const TypingRow kDeletionRows[] = {
    {kUs, "12/31/1999|", "{Bs}",             "12/31/199| "},
    {kUs, "12/31/|1999", "{Bs}",             "12/3| /1999"},
    {kUs, "12/31/1|999", "{Bs}",             "12/31/|999 "},
    {kUs, "1|2/31/1999", "{Bs}",             "|2 /31/1999"},
    {kUs, "|12/31/1999", "{Bs}",             "|12/31/1999"},
    {kUs, "|12/31/1999", "{Del}",            "|2 /31/1999"},
    {kUs, "12|/31/1999", "{Del}",            "12/|1 /1999"},
    {kUs, "12/31/1999|", "{Del}",            "12/31/1999|"},
    {kUs, "12/31/1999|", "{CtrlBs}",         "12/31/|    "},
    {kUs, "12/|31/1999", "{CtrlBs}",         "|  /31/1999"},
    {kUs, "12/31/19|99", "{CtrlBs}",         "12/31/|    "},
    {kUs, "12/31/|1999", "{CtrlDel}",        "12/31/|    "},
    {kUs, "12/31/19|99", "{CtrlDel}",        "12/31/|    "},
    {kUs, "12|/31/1999", "{CtrlDel}",        "12/|  /1999"},
    {kUs, "[12/31/1999]", "{Bs}",            "|  /  /    "},
    {kUs, "[12/31/1999]", "{Del}",           "|  /  /    "},
    {kUs, "[12/31]/1999", "{Cut}",           "|  /  /1999"},
    {kUs, "[12/31]/1999", "{Clear}",         "|  /  /1999"},
    {kUs, "[12/31]/1999", "{CtrlX}",         "|  /  /1999"},
    {kUs, "[12/31]/1999", "{ShiftDel}",      "|  /  /1999"},
    {kUs, "12[/31/]1999", "{Cut}",           "12/|  /1999"},
    {kUs, "12/31[/19]99", "{Cut}",           "12/31/|99  "},
    {kUs, "1[2/3]1/1999", "{Cut}",           "1| /1 /1999"},
    {kUs, "12[/]31/1999", "{Cut}",           "12/|31/1999"},
    {kUs, "12/3|1/1999", "{Cut}",            "12/3|1/1999"},
    {kUs, "12/3|1/1999", "{Clear}",          "12/3|1/1999"},
    {kUs, "[12/31]/1999", "{ReadOnly}{Cut}", "[12/31]/1999", "read-only"},
    {kUs, "12/3|1/1999", "{ReadOnly}{Bs}",   "12/3|1/1999", "read-only"},
    {kUs, "[12/31]/1999", "{Cut}{CtrlV}",    "|  /  /1999", "does not fit"},
    {kUs, "[12/31/1999]", "{Cut}{CtrlV}",    "12/31/1999|"},
    {kUs, "[12/31/1999]", "{Cut}{ShiftIns}", "12/31/1999|"},
    {kUs, "12/31/1999|", "{Paste}",          "12/31/1999|"},
};

const TypingRow kUndoRows[] = {
    {kUs, nullptr, "07042024{Undo}",         "|  /  /    "},
    {kUs, nullptr, "07042024{CtrlZ}",        "|  /  /    "},
    {kUs, nullptr, "07042024{Undo}{Redo}",   "07/04/2024|"},
    {kUs, nullptr, "07042024{CtrlZ}{CtrlY}", "07/04/2024|"},
    {kUs, nullptr, "07{Pause}04{Undo}",      "07/|  /    "},
    {kUs, nullptr, "07{Home}04{Undo}",       "|07/  /    "},
    {kUs, nullptr, "07x04{Undo}",            "|  /  /    ", "wrong kind"},
    {kUs, nullptr, "1{Blur}{Undo}",          "|  /  /    "},
    {kUs, nullptr, "07{Bs}{Undo}",           "07/|  /    "},
    {kUs, nullptr, "{Undo}",                 "|  /  /    "},
    {kUs, nullptr, "{Redo}",                 "|  /  /    "},
    {kUs, "12/31/1999|", "{Bs}{Bs}{Bs}{Undo}", "12/31/1999|"},
    {kUs, "[12/31]/1999", "{Cut}{Undo}",     "[12/31]/1999"},
    {kUs, "[12/31]/1999", "{Cut}{Undo}{Redo}", "|  /  /1999"},
    {kUs, "[12/31/1999]", "7{Undo}",         "[12/31/1999]"},
    {kUs, "12/3|1/1999", "{Cut}{Undo}",      "12/3|1/1999"},
    {kUsSpin, "|01/31/2024", "{Up}{Up}{Undo}", "[02]/29/2024"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{WheelUp}{Undo}", "|01/31/2024"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{Pause}{WheelUp}{Undo}", "[02]/29/2024"},
};

const TypingRow kCaretRows[] = {
    {kUs, "|12/31/1999", "{Right}",          "1|2/31/1999"},
    {kUs, "|12/31/1999", "{Right}{Right}",   "12/|31/1999"},
    {kUs, "12/|31/1999", "{Left}",           "1|2/31/1999"},
    {kUs, "|12/31/1999", "{Left}",           "|12/31/1999"},
    {kUs, "|12/31/1999", "{CtrlRight}",      "12/|31/1999"},
    {kUs, "12/31/|1999", "{CtrlLeft}",       "12/|31/1999"},
    {kUs, "|12/31/1999", "{End}",            "12/31/1999|"},
    {kUs, "|12/  /    ", "{End}",            "12|/  /    "},
    {kUs, "|12/  /    ", "{End}{End}",       "12/  /    |"},
    {kUs, "12/31/19|99", "{Home}",           "|12/31/1999"},
    {kUs, "[12/31]/1999", "{Left}",          "|12/31/1999"},
    {kUs, "[12/31/1999]", "{Right}",         "12/31/1999|"},
    {kUs, "|12/31/1999", "{Click2}",         "12/|31/1999"},
    {kUs, "|12/31/1999", "{Click5}",         "12/31/|1999"},
    {kUs, "|12/31/1999", "{Click4}",         "12/3|1/1999"},
    {kUs, "|12/31/1999", "{Click10}",        "12/31/1999|"},
    {kUs, nullptr, "{Click10}",              "|  /  /    "},  // behind a blank that is to be filled in
    {kUs, nullptr, "{Click10}7",             "07/|  /    "},
    {kUs, nullptr, "7{Click10}",             "07/|  /    "},
    {kUs, nullptr, "0704{Left}{Click10}",    "07/04/|    "},
    {kUs, "|12/31/1999", "{Double4}",        "12/[31]/1999"},
    {kUs, "|12/31/1999", "{Double8}",        "12/31/[1999]"},
    {kUs, "|12/31/1999", "{All}",            "[12/31/1999]"},
    {kFramed, "(12/31/99|)", "{Home}",       "(|12/31/99)"},
    {kHalves, "01:30 |PM", "{Right}",        "01:30 PM|"},
    {kHalves, "01:30 PM|", "{Left}",         "01:30 |PM"},
    {kHalves, "|01:30 PM", "{Click7}",       "01:30 |PM"},
};

const TypingRow kSpinRows[] = {
    {kUsSpin, "|01/31/2024", "{Up}",         "[02]/29/2024"},
    {kUsSpin, "|01/31/2023", "{Up}",         "[02]/28/2023"},
    {kUsSpin, "|03/31/2024", "{Down}",       "[02]/29/2024"},
    {kUsSpin, "|01/15/2024", "{Up}",         "[02]/15/2024"},
    {kUsSpin, "02/29/|2024", "{Up}",         "02/28/[2025]"},
    {kUsSpin, "02/29/|2024", "{Down}",       "02/28/[2023]"},
    {kUsSpin, "02/15/|2024", "{WheelUp}",    "02/15/[2025]"},
    {kUsSpin, "02/15/|2024", "{WheelDown}",  "02/15/[2023]"},
    {kUsSpin, "02/15/|2024", "{PageUp}",     "02/15/[2034]"},
    {kUsSpin, "02/15/|2024", "{PageDown}",   "02/15/[2014]"},
    {kUsSpin, "02/15/|9995", "{PageUp}",     "02/15/[9999]"},
    {kUsSpin, "02/15/|9999", "{PageUp}",     "02/15/|9999", "end of range"},
    {kUsSpin, "02/15/|9999", "{Up}",         "02/15/|9999", "end of range"},
    {kUsSpin, "02/15/|0001", "{Down}",       "02/15/|0001", "end of range"},
    {kUsSpin, nullptr, "{Up}",               "[06]/04/1995"},
    {kUsSpin, nullptr, "{Down}",             "[06]/04/1995"},
    {kUsSpin, "12|/  /    ", "{Up}",         "[01]/  /    "},
    {kUsSpin, "12/|  /    ", "{Up}",         "12/[01]/    "},
    {kUsSpin, "|01/31/2024", "{ReadOnly}{Up}", "|01/31/2024", "read-only"},
    {kShortSpin, "02/15/|49", "{Up}",        "02/15/|49", "end of range"},
    {kShortSpin, "02/15/|99", "{Up}",        "02/15/[00]"},
    {kTimeSpin, "|23:59", "{Up}",            "[00]:59"},
    {kTimeSpin, nullptr, "{Up}",             "[12]:00"},
    {kHalvesSpin, "|11:30 AM", "{Up}",       "[12]:30 PM"},
    {kHalvesSpin, "11:30 |AM", "{Up}",       "11:30 [PM]"},
    {kNamedSpin, "31-|JAN-2024", "{Up}",     "29-[FEB]-2024"},
    {kRanged, "01/|15/2024", "{Up}",         "01/[16]/2024"},
    {kRanged, "01/|15/2024", "{PageUp}",     "01/[20]/2024"},
    {kRanged, "01/|20/2024", "{PageUp}",     "01/|20/2024", "end of range"},
    {kRanged, "01/|20/2024", "{Up}",         "01/|20/2024", "end of range"},
    {kRanged, "01/|25/2024", "{Up}",         "01/[20]/2024"},
    {kRanged, "01/|05/2024", "{Down}",       "01/[10]/2024"},
};
// clang-format on

// ---- strings and code tables

// clang-format off
const TypingRow kStringRows[] = {
    {kPhone, nullptr, "5551234567",          "(555) 123-4567|"},
    {kPhone, nullptr, "(555) 123-4567",      "(555) 123-4567|"},
    {kPhone, nullptr, "555-",                "(555) |   -    "},
    {kPhone, nullptr, "555",                 "(555) |   -    "},
    {kPhone, nullptr, "55x",                 "(55| )    -    ", "wrong kind"},
    {kPhone, nullptr, "55512345678",         "(555) 123-4567|", "full"},
    {kPhone, nullptr, "(((",                 "(|   )    -    "},
    {kPhone, "(555) |123-4567", "{Bs}",      "(55| ) 123-4567"},
    {kPhone, "(555|) 123-4567", "{Del}",     "(555) | 23-4567"},
    {kPhone, "(|555) 123-4567", "{Bs}",      "(|555) 123-4567"},
    {kPhone, "(555) 1|23-4567", "{Del}",     "(555) 1| 3-4567"},
    {kPhone, "[(555) 123]-4567", "{Cut}",    "(|   )    -4567"},
    {kPhone, "(555[) ]123-4567", "{Cut}",    "(555) |123-4567"},
    {kPhone, "[(555) 123-4567]", "9",        "(9|  )    -    "},
    {kPhone, "[(555) 123-4567]", "x",        "[(555) 123-4567]", "wrong kind"},
    {kPhone, "(555) 123|-4567", "{CtrlBs}",  "(555) |   -4567"},
    {kPhone, "(555) |123-4567", "{CtrlDel}", "(555) |   -4567"},
    {kPhone, "(555) |123-4567", "9",         "(555) 9|23-4567"},
    {kPhone, "(555) 12|3-4567", "{Home}",    "(|555) 123-4567"},
    {kPhone, "(|555)    -    ", "{End}",     "(555|)    -    "},
    {kPhone, "(|555) 123-4567", "{Double8}", "(555) [123]-4567"},
    {kPhone, "(|555) 123-4567", "{Click10}", "(555) 123-|4567"},
    {kPhone, nullptr, "5551{Undo}",          "(|   )    -    "},
    {kPhone, "(555) |123-4567", "{Bs}{Bs}{Undo}", "(555) |123-4567"},
    {kPhone, "junk|", "5",                   "(5|  )    -    "},
    {kWord, nullptr, "ab1",                  "ab1|  "},
    {kWord, nullptr, "ab-",                  "ab|   ", "wrong kind"},
    {kWord, "|abcde", "x",                   "x|bcde"},
    {kWord, "a|bcde", "{Del}",               "a| cde"},
    {kWord, "a[bcd]e", "{Bs}",               "a|   e"},
    {kNote, "one two|", "{CtrlBs}",          "|        "},
    {kNote, "one two |", "{CtrlBs}",         "one |    "},
    {kNote, "|one two ", "{CtrlDel}",        "|    two "},
    {kNote, "|one two ", "{Double5}",        "one [two] "},
    {kNote, "|one two ", "{Double1}",        "[one] two "},
    {kNote, "|one two ", "{Double3}",        "[one] two "},
    {kNote, "|one     ", "{Double1}",        "[one     ]"},
    {kNote, "|        ", "{Double4}",        "[        ]"},
    {kPhone, "(|555)    -    ", "{Double7}", "(555) [   ]-    "},
    {kPlate, nullptr, "ab123",               "AB-123|"},
    {kPlate, nullptr, "a-1",                 "A--1|  "},
    {kPlus, nullptr, "12++",                 "12++| "},
};

const TypingRow kChoiceRows[] = {
    {kColours, nullptr, "g",                 "[Green]"},
    {kColours, nullptr, "G",                 "[Green]"},
    {kColours, nullptr, "grey",              "[Grey]"},
    {kColours, nullptr, "gg",                "[Grey]"},
    {kColours, nullptr, "ggg",               "[Green]"},
    {kColours, nullptr, "gx",                "[Green]", "no such entry"},
    {kColours, nullptr, "gxrey",             "[Grey]", "no such entry"},
    {kColours, nullptr, "g{Pause}r",         "[Red]"},
    {kColours, nullptr, "light b",           "[Light blue]"},
    {kColours, nullptr, "LIGHT B",           "[Light blue]"},
    {kColours, "[Red]", "z",                 "[Red]", "no such entry"},
    {kColours, "[Red]", "{Bs}",              "[None]"},
    {kColours, "[Red]", "{Del}",             "[None]"},
    {kColours, "[Red]", "{Cut}",             "[None]"},
    {kNoNull, "[Red]", "{Bs}",               "|"},
    {kNoNull, "[Red]", "{Del}",              "|"},
    {kColours, "[Green]", "{Home}",          "[Red]"},
    {kColours, "[Green]", "{End}",           "[None]"},
    {kColours, "[Red]", "{Up}{Down}",        "[Red]"},
    {kColours, "[Red]", "{Up}{Up}{Up}{Up}{Up}", "[Red]"},
    {kColours, "[Red]", "{WheelUp}{WheelDown}", "[Red]"},
    {kColours, "[Red]", "{PageUp}{PageUp}",  "[None]", "end of range"},
    {kColours, "[Red]", "{PageDown}",        "[Red]", "end of range"},
    {kColours, "[Green]", "{PageDown}",      "[Red]"},
    {kColours, "[Red]", "g{Undo}",           "[Red]"},
    {kColours, "[Red]", "{ReadOnly}g",       "[Red]", "read-only"},
    {kColours, "[Blue]", "g",                "[Green]"},
    {kColours, "[Blue]", "{Up}",             "[Red]"},
};

}  // namespace

const char* KeyOf(const std::string& act)
{
    const auto* const found =
        std::find_if(std::begin(kActKeys), std::end(kActKeys), [&](const ActKey& row) { return act == row.act; });
    return found == std::end(kActKeys) ? nullptr : found->key;
}

const std::vector<TypingRow>& ModernDates()
{
    static const std::vector<TypingRow> rows(std::begin(kDateRows), std::end(kDateRows));
    return rows;
}

const std::vector<TypingRow>& ModernTimes()
{
    static const std::vector<TypingRow> rows(std::begin(kTimeRows), std::end(kTimeRows));
    return rows;
}

const std::vector<TypingRow>& ModernDeletions()
{
    static const std::vector<TypingRow> rows(std::begin(kDeletionRows), std::end(kDeletionRows));
    return rows;
}

const std::vector<TypingRow>& ModernUndo()
{
    static const std::vector<TypingRow> rows(std::begin(kUndoRows), std::end(kUndoRows));
    return rows;
}

const std::vector<TypingRow>& ModernCarets()
{
    static const std::vector<TypingRow> rows(std::begin(kCaretRows), std::end(kCaretRows));
    return rows;
}

const std::vector<TypingRow>& ModernSpins()
{
    static const std::vector<TypingRow> rows(std::begin(kSpinRows), std::end(kSpinRows));
    return rows;
}

const std::vector<TypingRow>& ModernStrings()
{
    static const std::vector<TypingRow> rows(std::begin(kStringRows), std::end(kStringRows));
    return rows;
}

const std::vector<TypingRow>& ModernChoices()
{
    static const std::vector<TypingRow> rows(std::begin(kChoiceRows), std::end(kChoiceRows));
    return rows;
}

}  // namespace zttest::typing
