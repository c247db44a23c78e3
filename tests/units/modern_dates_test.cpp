// Dates and times in modern controls, at their edges: steps within fields, ranges and what is incomplete; digits, names, halves of the
// day, free text and separators; deletion; what completes a field that is left. And what is told.
#include <gtest/gtest.h>

#include "tests/support/rows.h"
#include "tests/units/modern_player.h"

namespace zttest::typing {
namespace {

constexpr TypingSetup kDaySpin = {"JJJ/YYYY", DT_DATE, ZTEO_SPIN};
constexpr TypingSetup kWholeSpin = {"HH:MM:SS.FFF", DT_TIME, ZTEO_SPIN};
constexpr TypingSetup kFramedSpin = {"(MM/DD/YY)", DT_DATE, ZTEO_SPIN};
constexpr TypingSetup kNotedSpin = {"MM/DD/YYYY XX", DT_DATE, ZTEO_SPIN};
constexpr TypingSetup kNothingSpin = {"(-)", DT_TIME, ZTEO_SPIN};
constexpr TypingSetup kLeast = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN, nullptr, "2024-01-10~"};
constexpr TypingSetup kMost = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN, nullptr, "~2024-01-20"};
constexpr TypingSetup kReversed = {"MM/DD/YYYY", DT_DATE, ZTEO_SPIN, nullptr, "2024-01-20~2024-01-10"};
constexpr TypingSetup kHours = {"HH:MM", DT_TIME, ZTEO_SPIN, nullptr, "08:00~18:30"};
constexpr TypingSetup kHoursFrom = {"HH:MM", DT_TIME, ZTEO_SPIN, nullptr, "08:00~"};
constexpr TypingSetup kHoursTo = {"HH:MM", DT_TIME, ZTEO_SPIN, nullptr, "~18:30"};
constexpr TypingSetup kDays = {"MM/DD/YYYY HH:MM", DT_DATETIME, ZTEO_SPIN, nullptr, "2024-01-10~2024-01-20"};
constexpr TypingSetup kMoments = {"MM/DD/YYYY HH:MM", DT_DATETIME, ZTEO_SPIN, nullptr, "2024-01-10 08:15~2024-01-20 09:30"};
constexpr TypingSetup kRangedDays = {"MM/DD/YYYY", DT_DATETIME, ZTEO_SPIN, nullptr, "2024-01-10~2024-01-20"};
constexpr TypingSetup kTight = {"YYYYMMDD", DT_DATE};
constexpr TypingSetup kSpaced = {"MM - DD - YYYY", DT_DATE};
constexpr TypingSetup kSkippingUs = {"MM/DD/YYYY", DT_DATE, ZTEO_AUTOSKIP};
constexpr TypingSetup kSkippingHalves = {"HH:MM AM/PM", DT_TIME, ZTEO_AUTOSKIP};
constexpr TypingSetup kLettered = {"HHuMM", DT_TIME};
constexpr TypingSetup kLetteredMore = {"HHuMM:SS", DT_TIME};
constexpr TypingSetup kLetteredFirst = {"uHH:MM", DT_TIME};
constexpr TypingSetup kNotedHalves = {"HH:MM AM/PM XX", DT_TIME};
constexpr TypingSetup kClose = {"AM/PMHH:MM", DT_TIME};
constexpr TypingSetup kUnevenHalves = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "AM", "p.m."};
constexpr TypingSetup kBothInP = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "pri", "po"};
constexpr TypingSetup kLongAlike = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "vorm", "vorn"};
constexpr TypingSetup kNamedHalves = {"DD MMM YY HH:MM AM/PM", DT_DATETIME};
constexpr TypingSetup kNotes = {"MM/DD/YYYY XX", DT_DATE};
constexpr TypingSetup kCased = {"MM/DD/YYYY !^", DT_DATE};

class ModernDateActs : public RowTest<ToldRow> {};

ROW_TEST(ModernDateActs, LeaveAndTell)
{
    ExpectTold(GetParam());
}

// clang-format off
const ToldRow kDateActs[] = {
    // steps: each field goes round within itself
    {kShortSpin, "02/15/|50", "{Down}", "02/15/|50", "end of range@6 beep"},
    {kShortSpin, "02/15/|51", "{Down}", "02/15/[50]", "changed value"},
    {kShortSpin, "02/15/|48", "{Up}", "02/15/[49]", "changed value"},
    {kShortSpin, "02/15/|00", "{Down}", "02/15/[99]", "changed value"},
    {kUsSpin, "02/15/|0002", "{Down}", "02/15/[0001]", "changed value"},
    {kUsSpin, "02/15/|9998", "{Up}", "02/15/[9999]", "changed value"},
    {kUsSpin, "|01/15/2024", "{Down}", "[12]/15/2024", "changed value"},
    {kUsSpin, "|12/15/2024", "{Up}", "[01]/15/2024", "changed value"},
    {kUsSpin, "|02/15/2024", "{Down}", "[01]/15/2024", "changed value"},
    {kUsSpin, "02/|29/2024", "{Up}", "02/[01]/2024", "changed value"},
    {kUsSpin, "02/|01/2023", "{Down}", "02/[28]/2023", "changed value"},
    {kUsSpin, "02/|01/2024", "{Down}", "02/[29]/2024", "changed value"},
    {kUsSpin, "02/|28/1900", "{Up}", "02/[01]/1900", "changed value"},
    {kUsSpin, "02/|01/2000", "{Down}", "02/[29]/2000", "changed value"},
    {kUsSpin, "|03/31/1900", "{Down}", "[02]/28/1900", "changed value"},
    {kUsSpin, "|03/31/2000", "{Down}", "[02]/29/2000", "changed value"},
    {kDaySpin, "|366/2024", "{Up}", "[001]/2024", "changed value"},
    {kDaySpin, "|001/2023", "{Down}", "[365]/2023", "changed value"},
    {kDaySpin, "|100/2024", "{Up}", "[101]/2024", "changed value"},
    {kDaySpin, "365/|2023", "{Up}", "366/[2024]", "changed value"},
    {kWholeSpin, "|23:59:59.999", "{Up}", "[00]:59:59.999", "changed value"},
    {kWholeSpin, "|00:00:00.000", "{Down}", "[23]:00:00.000", "changed value"},
    {kWholeSpin, "23:|59:59.999", "{Up}", "23:[00]:59.999", "changed value"},
    {kWholeSpin, "23:|00:59.999", "{Down}", "23:[59]:59.999", "changed value"},
    {kWholeSpin, "23:59:|59.999", "{Up}", "23:59:[00].999", "changed value"},
    {kWholeSpin, "23:59:|00.999", "{Down}", "23:59:[59].999", "changed value"},
    {kWholeSpin, "23:59:|58.999", "{Up}", "23:59:[59].999", "changed value"},
    {kWholeSpin, "23:59:59.|999", "{Up}", "23:59:59.[000]", "changed value"},
    {kWholeSpin, "23:59:59.|000", "{Down}", "23:59:59.[999]", "changed value"},
    {kWholeSpin, "23:59:59.|998", "{Up}", "23:59:59.[999]", "changed value"},
    {kWholeSpin, "23:|58:59.999", "{Up}", "23:[59]:59.999", "changed value"},
    {kHalvesSpin, "11:30 |PM", "{Up}", "11:30 [AM]", "changed value"},
    {kHalvesSpin, "12:30 |AM", "{Down}", "12:30 [PM]", "changed value"},
    {kHalvesSpin, "|12:30 AM", "{Down}", "[11]:30 PM", "changed value"},
    // ranges
    {kLeast, "01/|10/2024", "{Down}", "01/|10/2024", "end of range@3 beep"},
    {kLeast, "01/|11/2024", "{PageDown}", "01/[10]/2024", "changed value"},
    {kLeast, "01/|30/2024", "{Up}", "01/[31]/2024", "changed value"},
    {kLeast, "01/|05/2024", "{Up}", "01/[10]/2024", "changed 3>4 value"},
    {kMost, "01/|20/2024", "{Up}", "01/|20/2024", "end of range@3 beep"},
    {kMost, "01/|01/2024", "{Down}", "01/|01/2024", "end of range@3 beep"},
    {kMost, "01/|25/2024", "{Down}", "01/[20]/2024", "changed 3>4 value"},
    {kReversed, "01/|20/2024", "{Up}", "01/[21]/2024", "changed value"},
    {kReversed, nullptr, "{Data 2024-01-15}", "|01/15/2024", "layout update change layout 0>4"},
    {kRanged, nullptr, "{Data 2024-01-05}", "|01/05/2024", "layout update change layout 0>3"},
    {kRanged, nullptr, "{Up}", "[01]/10/2024", "changed 0>4 value"},
    {kRanged, "01/|10/2024", "{Down}", "01/|10/2024", "end of range@3 beep"},
    {kHours, "|18:00", "{Up}", "|18:00", "end of range@0 beep"},
    {kHours, "|08:00", "{Down}", "|08:00", "end of range@0 beep"},
    {kHours, "07:|30", "{Up}", "08:[00]", "changed 3>4 value"},
    {kHours, "|19:30", "{Down}", "[18]:30", "changed 3>4 value"},
    {kHours, nullptr, "{Data 07:59}", "|07:59", "layout update change layout 0>3"},
    {kHours, nullptr, "{Up}", "[12]:00", "changed 0>4 value"},
    {kHoursFrom, "|08:00", "{Down}", "|08:00", "end of range@0 beep"},
    {kHoursFrom, "|23:00", "{Up}", "|23:00", "end of range@0 beep"},
    {kHoursTo, "|18:00", "{Up}", "|18:00", "end of range@0 beep"},
    {kHoursTo, "|00:00", "{Down}", "|00:00", "end of range@0 beep"},
    {kDays, "01/05/2024 10:|30", "{Up}", "01/10/2024 00:[00]", "changed 3>4 value"},
    {kDays, "01/25/2024 10:|30", "{Up}", "01/20/2024 00:[00]", "changed 3>4 value"},
    {kDays, "01/|20/2024 00:00", "{Up}", "01/|20/2024 00:00", "end of range@3 beep"},
    {kDays, "01/|10/2024 00:00", "{Down}", "01/|10/2024 00:00", "end of range@3 beep"},
    {kMoments, "01/05/2024 10:|30", "{Up}", "01/10/2024 08:[15]", "changed 3>4 value"},
    {kMoments, "01/10/2024 08:|15", "{Down}", "01/10/2024 08:|15", "end of range@14 beep"},
    {kRangedDays, "01/|05/2024", "{Up}", "01/[10]/2024", "changed 3>4 value"},
    // what is incomplete steps its field alone, within its bounds
    {kHalvesSpin, "01:   |AM", "{Up}", "01:   [PM]", "changed value"},
    {kHalvesSpin, "01:   |PM", "{Up}", "01:   [AM]", "changed value"},
    {kHalvesSpin, "01:   |  ", "{Up}", "01:   [AM]", "changed value"},
    {kHalvesSpin, "01:   |  ", "{Down}", "01:   [AM]", "changed value"},
    {kHalvesSpin, "|12:     ", "{Up}", "[01]:     ", "changed value"},
    {kHalvesSpin, "|01:     ", "{Down}", "[12]:     ", "changed value"},
    {kHalvesSpin, "|  :30   ", "{Up}", "[01]:30   ", "changed value"},
    {kHalvesSpin, "|  :30   ", "{Down}", "[12]:30   ", "changed value"},
    {kHalvesSpin, "12:|59   ", "{Up}", "12:[00]   ", "changed value"},
    {kTimeSpin, "|23:  ", "{Up}", "[00]:  ", "changed value"},
    {kTimeSpin, "|00:  ", "{Down}", "[23]:  ", "changed value"},
    {kTimeSpin, "|  :30", "{Up}", "[00]:30", "changed 1>4 value"},
    {kTimeSpin, "|  :30", "{Down}", "[23]:30", "changed 1>4 value"},
    {kTimeSpin, "12:|  ", "{Up}", "12:[00]", "changed 1>4 value"},
    {kTimeSpin, "12:|  ", "{Down}", "12:[59]", "changed 1>4 value"},
    {kTimeSpin, "|99:  ", "{Up}", "[00]:  ", "changed 2>1 value"},
    {kTimeSpin, "|99:  ", "{Down}", "[23]:  ", "changed 2>1 value"},
    {kUsSpin, "|0 /31/2024", "{Up}", "[02]/31/2024", "changed 1>2 value"},
    {kUsSpin, "|1 /31/2024", "{Up}", "[02]/31/2024", "changed 1>2 value"},
    {kUsSpin, "|12/31/    ", "{PageUp}", "[10]/31/    ", "changed value"},
    {kUsSpin, "|02/31/2024", "{Up}", "[03]/31/2024", "changed 2>4 value"},
    {kUsSpin, "02/|31/2024", "{Up}", "02/[01]/2024", "changed 2>4 value"},
    {kUsSpin, "02/|31/2024", "{Down}", "02/[30]/2024", "changed value"},
    {kFramedSpin, nullptr, "{Caret0}{Up}", "|(06/04/95)", "changed 0>4 value"},
    {kFramedSpin, "|(12/  /  )", "{Caret0}{Up}", "([01]/  /  )", "changed value"},
    {kFramedSpin, "(12/31/99)|", "{Up}", "(12/31/99)|", "end of range@10 beep"},
    {kNotedSpin, "07/04/2024 |AB", "{Up}", "07/04/2024 |AB", "end of range@11 beep"},
    {kNotedSpin, "07/  /2024 |AB", "{Up}", "07/  /2024 |AB", "end of range@11 beep"},
    {kUsSpin, "ju|nk", "{Up}", "ju|nk", "end of range@2 beep"},
    {kNothingSpin, nullptr, "{Up}", "|(-)", ""},
    {kNamedSpin, "31-|JAN-    ", "{Up}", "31-[FEB]-    ", "changed value"},
    {kNamedSpin, "31-|   -    ", "{Up}", "31-[JAN]-    ", "changed value"},
    // typing digits
    {kNamed, nullptr, "400", "04-0|  -    ", "changed 0>1 changed out of bounds@40 beep"},
    {kNamed, nullptr, "41j", "04-J|  -    ", "changed 0>1 changed changed"},
    {kNamed, "04- |  -2024", "j", "04-J|  -2024", "changed"},
    {kNamed, "04-1|  -2024", "2", "04-DEC-|2024", "changed 1>4"},
    {kUs, " |2/31/1999", "1", "1| /31/1999", "changed 2>1"},
    {kTight, "2|0240704", "1", "21|240704", "changed"},
    {kTight, nullptr, "2024070", "2024070| ", "changed 0>1 changed changed changed changed changed changed"},
    {kHalves, "13:|   PM", "30", "13:30 |PM", "changed changed"},
    {kUs, "12|/31/1999", "4", "12/04/|1999", "changed"},
    {kUs, "12|/31/1999", "/", "12/|31/1999", ""},
    {kUs, "12/31/1999|", "x", "12/31/1999|", "wrong kind@10x beep"},
    {kUs, "12/31/1999|", "/", "12/31/1999|", "wrong kind@10/ beep"},
    {kTime, nullptr, "a", "|  :  ", "wrong kind@0a beep"},
    {kTime, "12:3|4", "x", "12:3|4", "wrong kind@4x beep"},
    {kFramed, "junk|", "7", "(07/|  /  )", "changed 2>1"},
    {kFramed, nullptr, "070424-", "(07/04/24)|", "changed 0>1 changed changed changed changed changed 1>4"},
    {kFramed, nullptr, "070424))", "(07/04/24)|", "changed 0>1 changed changed changed changed changed 1>4"},
    {kFramed, nullptr, "070424)-", "(07/04/24)|", "changed 0>1 changed changed changed changed changed 1>4 wrong kind@10- beep"},
    {kUs, nullptr, "12--", "12/  /|    ", "changed 0>1 changed"},
    {kUs, nullptr, "1//", "01/  /|    ", "changed 0>1 changed"},
    {kUs, nullptr, "1{Home}/", "01/|  /    ", "changed 0>1 changed"},
    {kUs, "|1 /31/1999", "/", "01/|31/1999", "changed 1>4"},
    {kUs, "1 |/31/1999", "/", "01/|31/1999", ""},
    {kSpaced, nullptr, "1 - 2 - 2024", "01 - 02 - 2024|", "changed 0>1 changed changed changed changed changed changed changed 1>4"},
    {kSpaced, nullptr, "1/-", "01 -    - |    ", "changed 0>1 changed"},
    {kSpaced, nullptr, "12 - 31 - 2024", "12 - 31 - 2024|", "changed 0>1 changed changed changed changed changed changed changed 1>4"},
    {kSpaced, nullptr, "12-31-2024", "12 - 31 - 2024|", "changed 0>1 changed changed changed changed changed changed changed 1>4"},
    {kSpaced, nullptr, "12  -", "12 -    - |    ", "changed 0>1 changed"},
    {kSkippingUs, nullptr, "1/2/24/", "01/02/2024|", "changed 0>1 changed changed changed changed changed changed 1>4 full"},
    {kSkippingUs, nullptr, "1/2/2/", "01/02/2002|", "changed 0>1 changed changed changed changed changed 1>4 full"},
    {kSkippingUs, nullptr, "07042024", "07/04/2024|", "changed 0>1 changed changed changed changed changed changed changed 1>4 full"},
    {kSkippingUs, "07/04/2024|", "/", "07/04/2024|", "wrong kind@10/ beep"},
    {kFramed, "(12/31/9 |)", ")", "(12/31/09)|", "changed 1>4"},
    {kFramed, "(07/04/24|)", ")", "(07/04/24)|", ""},
    {kFramed, "(07/04/24|)", "-", "(07/04/24|)", "wrong kind@9- beep"},
    {kFramed, "(07/04/|24)", ")", "(07/04/|24)", "wrong kind@7) beep"},
    {kFramed, "|(07/04/24)", "(", "(|07/04/24)", ""},
    {kFramed, "(|07/04/24)", "(", "(|07/04/24)", ""},
    {kFramed, "(0|7/04/24)", "(", "(07/|04/24)", ""},
    // letters as separators
    {kLettered, nullptr, "9u30", "09u30|", "changed 0>1 changed changed 1>4"},
    {kLettered, nullptr, "u30", "  u30|", "changed 0>1 changed"},
    {kLettered, nullptr, "13u30", "13u30|", "changed 0>1 changed changed changed 1>4"},
    {kLettered, nullptr, "9x", "09u|  ", "changed 0>1 wrong kind@3x beep"},
    {kLetteredMore, "12u|34:56", "u", "12u34:|56", ""},
    {kLetteredMore, "12u3|4:56", "u", "12u3|4:56", "wrong kind@4u beep"},
    {kLetteredFirst, "|u12:34", "u", "u|12:34", ""},
    {kLetteredFirst, "u|12:34", "u", "u|12:34", ""},
    {kLettered, "1|2u34", "u", "12u|34", ""},
    // halves of the day
    {kHalfFirst, nullptr, "0130", "AM 01:30|", "changed 0>1 changed changed changed 1>4"},
    {kHalfFirst, nullptr, "{Caret0}5", "AM 05:|  ", "changed 0>1"},
    {kHalves, "01:30 |PM", "5", "01:30 |PM", "wrong kind@65 beep"},
    {kHalves, "01:30 PM|", "a", "01:30 AM|", "changed"},
    {kHalves, "01|:30 PM", "a", "01:|30 AM", "changed"},
    {kHalves, "01:30 |PM", "am", "01:30 AM|", "changed"},
    {kHalves, "01:30 |PM", "ax", "01:30 AM|", "changed wrong kind@8x beep"},
    {kHalves, "01:30 |PM", "a{Pause}m", "01:30 AM|", "changed"},
    {kHalves, "|01:30 PM", "am", "|01:30 AM", "changed"},
    {kHalves, nullptr, "1p-m", "01:|   PM", "changed 0>1 changed changed wrong kind@3m beep"},
    {kHalves, nullptr, "1p:m", "01:|   PM", "changed 0>1 changed changed wrong kind@3m beep"},
    {kHalves, nullptr, "1pm", "1| :   PM", "changed 0>1 changed"},
    {kHalves, nullptr, "1pmm", "1| :   PM", "changed 0>1 changed wrong kind@1m beep"},
    {kSkippingHalves, "01:30 PM|", "am", "01:30 AM|", "changed full"},
    {kSkippingHalves, "01:30 |PM", "am", "01:30 AM|", "changed full"},
    {kSkippingHalves, "|01:30 PM", "a", "|01:30 AM", "changed"},
    {kSkippingHalves, nullptr, "0130p", "01:30 PM|", "changed 0>1 changed changed changed 1>4 changed full"},
    {kNotedHalves, "01:30 |PM   ", "5", "01:30 |PM   ", "wrong kind@65 beep"},
    {kNotedHalves, "01:30 PM|   ", "a", "01:30 PM a| ", "changed"},
    {kClose, "PM|01:30", "a", "AM|01:30", "changed"},
    {kUnevenHalves, "11:30 |p.m.", "a", "11:30 AM|", "changed"},
    {kUnevenHalves, "11:30 |AM", "p", "11:30 p.m.|", "changed"},
    {kUnevenHalves, "11:30 AM|", "p.m.", "11:30 p.m.|", "changed"},
    {kBothInP, nullptr, "0130p", "01:30 po|", "changed 0>1 changed changed changed 1>4 changed"},
    {kBothInP, nullptr, "0130po", "01:30 po|", "changed 0>1 changed changed changed 1>4 changed"},
    {kBothInP, nullptr, "0130pr", "01:30 pri|", "changed 0>1 changed changed changed 1>4 changed changed"},
    {kBothInP, nullptr, "p", "|  :   pri", "changed 0>1"},
    {kBothInP, nullptr, "pp", "|  :   po", "changed 0>1 changed"},
    {kBothInP, nullptr, "{Caret6}p", "  :   pri|", "changed 0>1"},
    {kLongAlike, nullptr, "0130v", "01:30 vorn|", "changed 0>1 changed changed changed 1>4 changed"},
    {kLongAlike, nullptr, "0130vo", "01:30 vorn|", "changed 0>1 changed changed changed 1>4 changed"},
    {kLongAlike, nullptr, "0130vorn", "01:30 vorn|", "changed 0>1 changed changed changed 1>4 changed"},
    {kLongAlike, nullptr, "0130vorm", "01:30 vorm|", "changed 0>1 changed changed changed 1>4 changed changed"},
    {kLongAlike, nullptr, "vo", "|  :   vorm", "changed 0>1"},
    {kNamedHalves, nullptr, "4a", "04 A|        :     ", "changed 0>1 changed"},
    {kNamedHalves, nullptr, "4dpe", "04 DEC |     :   PM", "changed 0>1 changed changed wrong kind@7e beep"},
    {kNamedHalves, nullptr, "4dec24130p", "04 DEC 24 01:0|  PM", "changed 0>1 changed changed changed changed changed changed"},
    // free text
    {kNotes, nullptr, "07042024ab", "07/04/2024 ab|",
     "changed 0>1 changed changed changed changed changed changed changed 1>4 changed changed"},
    {kNotes, nullptr, "07042024a b", "07/04/2024 a |",
     "changed 0>1 changed changed changed changed changed changed changed 1>4 changed wrong kind@13b beep"},
    {kNotes, nullptr, "07042024-b", "07/04/2024 -b|",
     "changed 0>1 changed changed changed changed changed changed changed 1>4 changed changed"},
    {kNotes, nullptr, "07042024/b", "07/04/2024 /b|",
     "changed 0>1 changed changed changed changed changed changed changed 1>4 changed changed"},
    {kNotes, nullptr, "07042024abc", "07/04/2024 ab|",
     "changed 0>1 changed changed changed changed changed changed changed 1>4 changed changed wrong kind@13c beep"},
    {kNotes, "07/04/2024 |AB", "x", "07/04/2024 x|B", "changed"},
    {kNotes, "07/04/2024 A|B", "-", "07/04/2024 A-|", "changed"},
    {kCased, nullptr, "07042024aB", "07/04/2024 Ab|",
     "changed 0>1 changed changed changed changed changed changed changed 1>4 changed changed"},
    // deletion
    {kUs, "12/31/1 |99", "{Del}", "12/31/19|  ", "changed 2>1"},
    {kUs, "12/31/1 |99", "{Bs}", "12/31/1|99 ", "changed 2>1"},
    {kUs, "12/31/19|99", "{Del}", "12/31/19|9 ", "changed 4>1"},
    {kUs, "1| /31/1999", "{Del}", "1 /|1 /1999", "changed"},
    {kUs, "|  /31/1999", "{Del}", "  /|1 /1999", "changed"},
    {kUs, "1| /31/1999", "{CtrlDel}", "1 /|  /1999", "changed"},
    {kUs, "12|/31/1999", "{CtrlBs}", "|  /31/1999", "changed 4>1"},
    {kNamed, "04-J|UL-2024", "{Del}", "04-J|  -2024", "changed 4>1"},
    {kNamed, "04-J|UL-2024", "{Bs}", "04-|   -2024", "changed 4>1"},
    {kNamed, "04-[JU]L-2024", "{Clear}", "04-|   -2024", "changed 4>1"},
    {kNotes, "07/04/2024 |AB", "{Del}", "07/04/2024 | B", "changed"},
    {kNotes, "07/04/2024 A|B", "{Bs}", "07/04/2024 | B", "changed"},
    {kNotes, "07/04/2024 |AB", "{CtrlDel}", "07/04/2024 |  ", "changed"},
    {kNotes, "07/04/2024 AB|", "{CtrlBs}", "07/04/2024 |  ", "changed"},
    {kNotes, "07/04/202[4 A]B", "{Clear}", "07/04/202|   B", "changed 4>1"},
    {kFramed, "(12/31/99[)]", "{Clear}", "(12/31/99|)", ""},
    {kFramed, "[(]12/31/99)", "{Clear}", "(|12/31/99)", ""},
    {kFramed, "(12/31/99)|", "{Bs}", "(12/31/9| )", "changed 4>1"},
    {kFramed, "|(12/31/99)", "{Del}", "(|2 /31/99)", "changed 4>1"},
    {kFramed, "|(12/31/99)", "{Bs}", "|(12/31/99)", ""},
    {kFramed, "(12/31/99)|", "{Del}", "(12/31/99)|", ""},
    {kUs, "ju|nk", "{Bs}", "|  /  /    ", "changed 2>0"},
    {kUs, "ju|nk", "{Del}", "|  /  /    ", "changed 2>0"},
    {kFramed, "[junk]", "{Clear}", "(|  /  /  )", "changed 2>0"},
    {kTight, "2024[07]04", "{Clear}", "2024|  04", "changed 4>1"},
    {kTight, "202[407]04", "{Clear}", "202|   04", "changed 4>1"},
    {kTight, "2024|0704", "{Bs}", "202| 0704", "changed 4>1"},
    {kHalves, "01:30 P|M", "{Bs}", "01:30 |  ", "changed 4>1"},
    {kHalves, "01:30 P|M", "{Del}", "01:30 |  ", "changed 4>1"},
    {kHalves, "01:3[0 P]M", "{Clear}", "01:3|    ", "changed 4>1"},
    // what is left
    {kUs, nullptr, "1{Caret10}", "01/  /    |", "changed 0>1 changed"},
    {kUs, "12/31/1|   ", "{Home}", "|12/31/2001", "changed 1>4"},
    {kUs, "12/31/19|  ", "{End}{Blur}", "12/31/2019|", "changed 1>4"},
    {kUs, "12/31/199| ", "{Home}", "|12/31/199 ", ""},
    {kFramed, "(12/31/9| )", "{Blur}", "(12/31/0|9)", "changed 1>4"},
    {kFramed, "(12/31/9 |)", "{Blur}", "(12/31/09|)", "changed 1>4"},
    {kFramed, "(12/31/9 )|", "{Blur}", "(12/31/9 )|", ""},
    {kDayOfYear, "7|  /2024", "{Blur}", "0|07/2024", "changed 1>4"},
    {kFraction, "12:30:45.5|  ", "{Home}", "|12:30:45.500", "changed 1>4"},
    {kNamed, "04-D|  -2024", "{Blur}", "04-D|EC-2024", "changed 1>4"},
    {kNamed, "04-1|  -2024", "{Blur}", "04-J|AN-2024", "changed 1>4"},
    {kNotes, "07/04/2024 A| ", "{Blur}", "07/04/2024 A| ", ""},
    {kHalves, "1| :30 PM", "{Blur}", "0|1:30 PM", "changed 1>4"},
    {kHalves, "0| :30 PM", "{Blur}", "1|2:30 AM", "changed 1>4"},
    {kTight, "20240|  4", "{Blur}", "20240|  4", ""},
    {kTight, "2024 |  4", "{Blur}", "2024 |  4", ""},
    {kUs, "ju|nk", "{Blur}", "ju|nk", ""},
    {kHalves, "13|:30 PM", "{Blur}", "13|:30 PM", ""},
    {kHalves, "1|3:30 PM", "{Home}{End}", "13:30 PM|", ""},
    {kHalves, nullptr, "0130pa", "01:30 AM|", "changed 0>1 changed changed changed 1>4 changed changed"},
    {kHalves, nullptr, "0130pam", "01:30 AM|", "changed 0>1 changed changed changed 1>4 changed changed"},
    {kHalves, "01:30 PM|", "p", "01:30 PM|", ""},
    {kHalves, "01:30 PM|", "x", "01:30 PM|", "wrong kind@8x beep"},
    {kHalves, "01:30   |", "p", "01:30 PM|", "changed 1>4"},
    {kHalfFirst, "PM 01:30|", "a", "AM 01:30|", "changed"},
    {kNamedHalves, "04| JUL 24 01:30 AM", "a", "04 A|   24 01:30 AM", "changed 4>1"},
    {kNamedHalves, "04 JUL 24 01:30 AM|", "p", "04 JUL 24 01:30 PM|", "changed"},
    {kDotted, "01:30 p.m.|", "a", "01:30 a.m.|", "changed"},
    {kDotted, "01:30 p.m.|", "a.m.", "01:30 a.m.|", "changed"},
    {kUs, "12/31/|19  ", "/", "12/31/2019|", "changed 1>4"},
    {kUs, "12/31/19|99", "/", "12/31/19|99", "wrong kind@8/ beep"},
    {kUs, "12/3|1/1999", "/", "12/31/|1999", ""},
};
TEST_ROWS(Rows, ModernDateActs, kDateActs);
// clang-format on

}  // namespace
}  // namespace zttest::typing
