#pragma once

class QTabWidget;

namespace pastorix {

// Ctrl and its number bring a tab of a sheet up (tooltips say so). What is typed in goes along: from a field of one tab to the first of
// the next; from what stands above the tabs it stays there, so that records can be gone through with one tab in view, until the key is
// pressed again.
void ConectarPestañas(QTabWidget& pestañas);

} // namespace pastorix
