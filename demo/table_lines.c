/* Code tables as a person writes them. */
#include "table_lines.h"

#include <string.h>

/* One character more in a code table's text, where there is room. */
static void Append(char* text, size_t* length, size_t size, char c)
{
    if (*length + 1 < size)
        text[(*length)++] = c;
    text[*length] = '\0';
}

void TableFromLines(const char* lines, char* table, size_t size)
{
    size_t length = 0;
    table[0] = '\0';
    for (; *lines; ++lines)
        if (strncmp(lines, "\r\n", 2) == 0) {
            ++lines;
            if (lines[1] && lines[1] != '\r')
                Append(table, &length, size, '/');
        } else if (strncmp(lines, " = ", 3) == 0) {
            lines += 2;
            Append(table, &length, size, '\t');
        } else {
            if (*lines == '/')
                Append(table, &length, size, '/');
            Append(table, &length, size, *lines);
        }
}

void LinesFromTable(const char* table, char* lines, size_t size)
{
    static const char kBetween[] = "\r\n", kEquals[] = " = ";
    size_t length = 0;
    lines[0] = '\0';
    for (; table && *table; ++table) {
        const char* part = *table == '\t' ? kEquals : *table == '/' && table[1] != '/' ? kBetween : NULL;
        if (!part) {
            table += *table == '/';
            Append(lines, &length, size, *table);
        }
        for (; part && *part; ++part)
            Append(lines, &length, size, *part);
    }
}
