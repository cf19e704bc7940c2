#pragma once

#include <clocale>

namespace pastorix {

// Gives the process the numbers of C back. The toolkit sets the whole locale from the environment when its application object is made,
// and from then on snprintf and strtod, ours and those of the libraries, write and read "12,5": in workbooks too, which no
// spreadsheet takes. Whoever makes an application object calls this right behind it; numbers that people see have their
// comma from our own formats.
inline void FijarLocaleNumerico() {
    std::setlocale(LC_NUMERIC, "C");
}

} // namespace pastorix
