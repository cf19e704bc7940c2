#include "access/Lector.h"

namespace pastorix::access {

void Dañar(const std::string& detalle, std::uint32_t pagina) {
    if (pagina == 0)
        throw Daño{detalle};
    throw Daño{detalle + " (página " + std::to_string(pagina) + ")"};
}

void Cortar(const std::string& detalle) {
    throw Daño{detalle, Daño::Como::Cortado};
}

void Lector::FueraDeLimites() const {
    Dañar("un dato se sale de su sitio", m_pagina);
}

} // namespace pastorix::access
