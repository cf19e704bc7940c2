#pragma once

#include "store/Valor.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pastorix {

// Where a field of a layout lies: index of the declared table and of the declared column in it.
struct RefCampo {
    int tabla = -1;
    int columna = -1;
    friend bool operator==(const RefCampo&, const RefCampo&) = default;
};

// A condition over fields, texts and numbers: "{X_Temp.C5} <= '2026'", "{T_Sementales.Id_Ganadero}=12",
// "({X.N1} > 2 or {X.N1} = 0) and not {X.C1}". Serves the selection of a report and the visibility of its parts.
class Formula {
public:
    enum class Op { Y, O, No, Igual, Distinto, Menor, MenorIgual, Mayor, MayorIgual, ConTexto };
    struct Operando {
        bool esCampo = false;
        RefCampo campo;
        Valor literal;
    };
    struct Nodo {
        Op op = Op::Y;
        int a = -1; // operands of and, or, not: positions in the list of nodes
        int b = -1;
        Operando izquierda;
        Operando derecha;
    };

    using Campos = std::function<const Valor&(RefCampo)>;

    bool Vacia() const { return m_nodos.empty(); }
    // True when the row passes. An empty formula passes everything; a comparison with Null never passes. Texts compare as the
    // databases do, without regard to case. Throws ErrorInforme(Formula) when a text is compared with a number it cannot be.
    bool Cumple(const Campos& campos) const;
    // The fields it names.
    std::vector<RefCampo> CamposUsados() const;

private:
    friend class LectorFormula;
    bool Cumple(int nodo, const Campos& campos) const;
    std::vector<Nodo> m_nodos; // the last one is the root
};

// What the reader of formulas and templates asks of the layout. Both throw ErrorInforme when the name is not declared.
struct Nombres {
    std::function<RefCampo(std::string_view)> campo; // "X_Temp.C5"
    std::function<int(std::string_view)> parametro;  // "AñoRef"
};

// Reads a formula. Throws ErrorInforme(Formula) with the position of the fault; a bare field ("has text") is a condition only
// where the caller allows it, since no selection of records is written that way.
Formula LeerFormula(std::string_view texto, const Nombres& nombres, bool campoSolo);

} // namespace pastorix
