#pragma once

#include "store/Conexion.h"

#include <string>
#include <vector>

namespace pastorix {

// A farm's vaccination dates (dd/mm/yy) of the given columns of T_FechasVacu ("IBR, BVD"), a list for each of them in the order asked for; blank
// and repeated ones left out. Throws ErrorAlmacen.
std::vector<std::vector<std::string>> LeerFechasVacu(Conexion& c, const char* columnas, const char* orden,
                                                     double idGanadero);

} // namespace pastorix
