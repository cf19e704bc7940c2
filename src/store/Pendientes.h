#pragma once

#include "store/Valor.h"

#include <cstddef>
#include <span>
#include <vector>

namespace pastorix {

// What was assigned since AddNew or the last Update, in the order of assigning. The places are used again row after row, so that a loop
// that adds rows allocates nothing.
class Pendientes {
public:
    struct Asignada {
        int columna = 0;
        Valor valor;
    };

    void Columnas(std::size_t n) { m_columnas = n; }
    bool Vacio() const { return m_n == 0; }
    void Vaciar() {
        for (std::size_t i = 0; i < m_n; ++i)
            m_lugar[static_cast<std::size_t>(m_asignadas[i].columna)] = -1;
        m_n = 0;
    }
    const Valor* Buscar(int columna) const {
        const int lugar = m_n == 0 ? -1 : m_lugar[static_cast<std::size_t>(columna)];
        return lugar < 0 ? nullptr : &m_asignadas[static_cast<std::size_t>(lugar)].valor;
    }
    // The place of a column's value, with whatever was in it before.
    Valor& De(int columna) {
        if (m_lugar.empty()) { // most recordsets only read
            m_lugar.assign(m_columnas, -1);
            m_asignadas.reserve(m_columnas); // no value moves while another one is assigned from it
        }
        int& lugar = m_lugar[static_cast<std::size_t>(columna)];
        if (lugar < 0) {
            if (m_n == m_asignadas.size())
                m_asignadas.emplace_back();
            lugar = static_cast<int>(m_n++);
            m_asignadas[static_cast<std::size_t>(lugar)].columna = columna;
        }
        return m_asignadas[static_cast<std::size_t>(lugar)].valor;
    }
    std::span<const Asignada> Todas() const { return {m_asignadas.data(), m_n}; }

private:
    std::size_t m_columnas = 0;
    std::vector<Asignada> m_asignadas; // the first m_n are in use
    std::size_t m_n = 0;
    std::vector<int> m_lugar; // by column, -1: not assigned
};

} // namespace pastorix
