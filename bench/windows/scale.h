// What grows with a form: controls made, filled, typed into and destroyed on forms of one, a hundred and two thousand, and a form of two
// hundred mixed controls beside one of as many date pickers.
#pragma once

namespace bench {

// Prints "scale|controls|made|filled|key|set and get|destroyed", microseconds of one control or one call each.
void MeasureForms();

// Prints "form|control|date picker|ratio", milliseconds in which a form is opened, filled and painted.
void MeasureMixedForm();

}  // namespace bench
