/* A form on a terminal: a date, an amount and a phone number, in raw mode. Enter and Tab go on, Escape gives up.
 *
 *     cc terminal_field.c -o terminal_field $(pkg-config --cflags --libs ztfield)
 */
#include <poll.h>
#include <stdio.h>
#include <string.h>
#include <termios.h>
#include <unistd.h>

#include <ztfield.h>

#define FIELDS 3
#define LABEL_WIDTH 12
#define ESCAPE 0x1B
#define ENTER '\r'
#define TAB '\t'
#define DELETE_BACK 0x7F
#define MOMENT 50 /* milliseconds in which the rest of a key's bytes come */

static const char* const kLabels[FIELDS] = {"Due", "Amount", "Phone"};
static const char* const kMasks[FIELDS] = {"MM/DD/YYYY", "#,###,##0.00", "(###) ###-####"};
static const int32_t kTypes[FIELDS] = {DT_DATE, DT_DECIMAL, DT_STRING};

static const char* const kStates[] = {"", "to be completed", "no such value", "out of range", "ok"};
static const char* const kReasons[] = {"",
                                       "does not belong there",
                                       "there is no such number",
                                       "no room for more",
                                       "read-only",
                                       "cannot be read",
                                       "could be read in two ways",
                                       "does not exist",
                                       "no such entry",
                                       "the end of the range",
                                       "not in the code page"};

/* What terminals send for keys, behind Escape. */
/* clang-format off */
static const struct {
    const char* bytes;
    int32_t key, held;
} kKeys[] = {
    {"[A", ZTF_KEY_UP, 0},      {"[B", ZTF_KEY_DOWN, 0},   {"[C", ZTF_KEY_RIGHT, 0},   {"[D", ZTF_KEY_LEFT, 0},
    {"OA", ZTF_KEY_UP, 0},      {"OB", ZTF_KEY_DOWN, 0},   {"OC", ZTF_KEY_RIGHT, 0},   {"OD", ZTF_KEY_LEFT, 0},
    {"[H", ZTF_KEY_HOME, 0},    {"[F", ZTF_KEY_END, 0},    {"OH", ZTF_KEY_HOME, 0},    {"OF", ZTF_KEY_END, 0},
    {"[1~", ZTF_KEY_HOME, 0},   {"[4~", ZTF_KEY_END, 0},   {"[2~", ZTF_KEY_INSERT, 0}, {"[3~", ZTF_KEY_DELETE, 0},
    {"[5~", ZTF_KEY_PAGE_UP, 0},           {"[6~", ZTF_KEY_PAGE_DOWN, 0},
    {"[1;2C", ZTF_KEY_RIGHT, ZTF_SHIFT},   {"[1;2D", ZTF_KEY_LEFT, ZTF_SHIFT},
    {"[1;2H", ZTF_KEY_HOME, ZTF_SHIFT},    {"[1;2F", ZTF_KEY_END, ZTF_SHIFT},
    {"[1;5C", ZTF_KEY_RIGHT, ZTF_CONTROL}, {"[1;5D", ZTF_KEY_LEFT, ZTF_CONTROL},
};
/* clang-format on */

static struct termios before;
static const char* refusal = "";

static int32_t Hear(void* context, ZTField* field, const ZTFieldEvent* event)
{
    (void)context;
    (void)field;
    if (event->kind == ZTF_REJECTED)
        refusal = kReasons[event->reason];
    if (event->kind == ZTF_BEEP)
        putchar('\a');
    return 0;
}

static void BecomeRaw(void)
{
    struct termios raw;

    tcgetattr(STDIN_FILENO, &before);
    raw = before;
    raw.c_lflag &= ~(tcflag_t)(ICANON | ECHO | ISIG | IEXTEN);
    raw.c_iflag &= ~(tcflag_t)(ICRNL | IXON);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &raw);
}

static int NextByte(void)
{
    unsigned char byte;
    return read(STDIN_FILENO, &byte, 1) == 1 ? byte : -1;
}

static int ComesMore(void)
{
    struct pollfd input = {STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, MOMENT) > 0;
}

/* The key behind an Escape; 0 for the Escape itself. */
static int PressKeyOfTerminal(ZTField* field)
{
    char bytes[16];
    size_t count = 0, row;

    while (count + 1 < sizeof bytes && ComesMore()) {
        const int byte = NextByte();
        if (byte < 0)
            break;
        bytes[count++] = (char)byte;
        if (count > 1 && byte >= '@' && byte <= '~')
            break;
    }
    bytes[count] = '\0';
    for (row = 0; row < sizeof kKeys / sizeof *kKeys; ++row)
        if (strcmp(bytes, kKeys[row].bytes) == 0)
            ZTF_Press(field, kKeys[row].key, kKeys[row].held);
    return count > 0;
}

static void TypeCharacter(ZTField* field, int first)
{
    char utf8[5] = {0};
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    int i;

    utf8[0] = (char)first;
    for (i = 1; i <= more; ++i)
        utf8[i] = (char)NextByte();
    ZTF_Type(field, utf8);
}

/* Counts the bytes of a text's first characters; one character is one column here. */
static int BytesOf(const char* utf8, int32_t characters)
{
    int bytes = 0;
    while (characters-- > 0 && utf8[bytes])
        for (++bytes; ((unsigned char)utf8[bytes] & 0xC0) == 0x80; ++bytes)
            continue;
    return bytes;
}

static void Draw(ZTField* field, const char* label)
{
    char text[512];
    int32_t anchor, caret, first, last;

    ZTF_GetText(field, text, sizeof text);
    ZTF_GetSelection(field, &anchor, &caret);
    first = BytesOf(text, anchor < caret ? anchor : caret);
    last = BytesOf(text, anchor < caret ? caret : anchor);
    printf("\r\033[K%-*s%.*s\033[7m%.*s\033[m%s   %s", LABEL_WIDTH, label, (int)first, text, (int)(last - first),
           text + first, text + last, *refusal ? refusal : kStates[ZTF_GetState(field)]);
    printf("\r\033[%dC", LABEL_WIDTH + (int)caret);
    fflush(stdout);
}

/* 1 where the form goes on. */
static int Edit(ZTField* field, const char* label)
{
    for (;;) {
        int byte;

        Draw(field, label);
        byte = NextByte();
        refusal = "";
        if (byte < 0)
            return 0;
        if (byte == ENTER || byte == TAB)
            break;
        if (byte == ESCAPE) {
            if (!PressKeyOfTerminal(field))
                return 0;
        } else if (byte == DELETE_BACK) {
            ZTF_Press(field, ZTF_KEY_BACKSPACE, 0);
        } else if (byte < ' ') {
            ZTF_Press(field, byte + 'A' - 1, ZTF_CONTROL);
        } else {
            TypeCharacter(field, byte);
        }
    }
    ZTF_Leave(field);
    Draw(field, label);
    putchar('\n');
    return 1;
}

int main(void)
{
    ZTField* fields[FIELDS];
    char value[512];
    int i, goesOn = 1;

    BecomeRaw();
    for (i = 0; i < FIELDS; ++i) {
        ZTFieldSetup setup = {0};
        setup.mask = kMasks[i];
        setup.dataType = kTypes[i];
        setup.options = ZTEO_MODERN | ZTEO_SPIN; /* Up and Down step */
        setup.listener = Hear;
        fields[i] = ZTF_Create(&setup);
        if (!fields[i])
            goesOn = 0;
    }
    for (i = 0; i < FIELDS && goesOn; ++i)
        goesOn = Edit(fields[i], kLabels[i]);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
    if (!goesOn)
        putchar('\n');
    for (i = 0; i < FIELDS; ++i) {
        if (goesOn)
            printf("%s=%s\n", kLabels[i], ZTF_GetDataString(fields[i], value, sizeof value) < 0 ? "?" : value);
        ZTF_Destroy(fields[i]);
    }
    return goesOn ? 0 : 1;
}
