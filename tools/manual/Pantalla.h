#pragma once

#include "manual/Fuente.h"

namespace pastorix::manual {

// The document as one page of HTML in the small set that the program's help window shows. Headings carry the anchors t1, t2, ... in their
// order; figures keep their paths, relative to the source.
QString PaginaHtml(const Documento& documento);

} // namespace pastorix::manual
