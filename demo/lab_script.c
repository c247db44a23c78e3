/* What the laboratory tells a script that plays it. */
#include "lab_script.h"

#include <stdio.h>

#include "lab_state.h"

/* name left top right bottom, in screen pixels */
void WritePlaces(const char* path)
{
    FILE* file = path ? fopen(path, "w") : NULL;
    RECT place;
    int item;
    if (!file)
        return;
    for (item = 0; item < ITEM_COUNT; ++item)
        if (ItemName((LabItem)item)[0]) {
            GetWindowRect(At((LabItem)item), &place);
            fprintf(file, "%s %ld %ld %ld %ld\n", ItemName((LabItem)item), place.left, place.top, place.right,
                    place.bottom);
        }
    fclose(file);
}

/* One line of text, whatever stands in it. */
static void WriteText(FILE* file, const char* text)
{
    for (; *text; ++text)
        if (*text != '\r')
            fputc(*text == '\n' || *text == '\t' ? ' ' : *text, file);
}

static void WriteList(FILE* file)
{
    const int count = (int)SendMessageA(At(ITEM_LIST), LB_GETCOUNT, 0, 0);
    char line[TEXT_ROOM];
    int i;
    for (i = 0; i < count; ++i) {
        SendMessageA(At(ITEM_LIST), LB_GETTEXT, (WPARAM)i, (LPARAM)line);
        if (i)
            fputs("; ", file);
        WriteText(file, line);
    }
}

/* name|what it shows; "focus" is the name of the item with the focus, "marked" what is selected in the mask */
static void WriteTable(const char* path)
{
    FILE* file = path ? fopen(path, "w") : NULL;
    const int focus = GetDlgCtrlID(GetFocus()) - FIRST_LAB_ID;
    DWORD from = 0, to = 0;
    char text[TEXT_ROOM];
    int item;
    if (!file)
        return;
    for (item = 0; item < ITEM_LIST; ++item) {
        Read((LabItem)item, text, sizeof text);
        fprintf(file, "%s|", ItemName((LabItem)item));
        WriteText(file, text);
        fputc('\n', file);
    }
    fputs("list|", file);
    WriteList(file);
    SendMessageA(At(ITEM_MASK), EM_GETSEL, (WPARAM)&from, (LPARAM)&to);
    fprintf(file, "\nmarked|%d-%d\n", (int)from, (int)to);
    fprintf(file, "focus|%s\nend|\n", focus >= 0 && focus < ITEM_COUNT ? ItemName((LabItem)focus) : "");
    fclose(file);
}

/* The table last: who sees it whole sees the places as well. */
void TellScript(const char* placesPath, const char* tablePath)
{
    WritePlaces(placesPath);
    WriteTable(tablePath);
}
