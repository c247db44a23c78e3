/* What the laboratory tells a script that plays it. */
#ifndef DEMO_LAB_SCRIPT_H
#define DEMO_LAB_SCRIPT_H

/* Where the items stand, and what they show; without a path nothing. */
void WritePlaces(const char* path);
void TellScript(const char* placesPath, const char* tablePath);

#endif
