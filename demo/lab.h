/* The laboratory: a window in which masks are tried. */
#ifndef DEMO_LAB_H
#define DEMO_LAB_H

/* Opens it, and returns when it is closed. The paths are for scripts and may be null: where its items stand on the screen is written when
 * it is shown and at F2, what they show at F2, and what the mouse has done. */
int RunLab(int show, const char* placesPath, const char* tablePath, const char* mousePath);

#endif
