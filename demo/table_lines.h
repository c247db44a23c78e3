/* Code tables as a person writes them: a line "Display = data" for each entry. */
#ifndef DEMO_TABLE_LINES_H
#define DEMO_TABLE_LINES_H

#include <stddef.h>

/* To the text of a code table (entries between '/', a tab inside them, "//" for a '/' itself), and back; null is no table. */
void TableFromLines(const char* lines, char* table, size_t size);
void LinesFromTable(const char* table, char* lines, size_t size);

#endif
