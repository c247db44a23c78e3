// The clock that everything is measured with.
#pragma once

#include <functional>
#include <vector>

namespace bench {

double Now();  // in microseconds, of no particular begin
double Microseconds(const std::function<void()>& work);
double Median(std::vector<double> values);

}  // namespace bench
