#pragma once

#include "store/Valor.h"

#include <functional>
#include <span>
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

// A condition over fields, parameters, texts and numbers: "{X_Temp.C5} <= '2026'", "{T_Sementales.Id_Ganadero}=12",
// "({X.N1} > 2 or {X.N1} = 0) and not {X.C1}". Serves the selection of a report and the visibility of its parts.
class Formula {
public:
    enum class Op { Y, O, No, Igual, Distinto, Menor, MenorIgual, Mayor, MayorIgual, ConTexto };
    struct Operando {
        bool esCampo = false;
        RefCampo campo;
        int parametro = -1;
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
    // True when the row passes. An empty formula passes everything; a comparison with Null never passes, nor one of a text with a number
    // or a date that it cannot be. Texts compare as the databases do, without regard to case.
    bool Cumple(const Campos& campos, std::span<const Valor> parametros = {}) const;
    // The fields it names.
    std::vector<RefCampo> CamposUsados() const;

private:
    friend class LectorFormula;
    bool Cumple(int nodo, const Campos& campos, std::span<const Valor> parametros) const;
    std::vector<Nodo> m_nodos; // the last one is the root
};

// What the reader of formulas and templates asks of the layout. Both throw ErrorInforme when the name is not declared.
struct Nombres {
    std::function<RefCampo(std::string_view)> campo; // "X_Temp.C5"
    std::function<int(std::string_view)> parametro;  // "AñoRef"
};

// Reads a formula. Throws ErrorInforme(Formula) with the position of the fault. Conditions of a layout may hold parameters "{?AñoRef}" and
// bare fields ("has text"); no selection of records is written that way.
Formula LeerFormula(std::string_view texto, const Nombres& nombres, bool deDiseño);

} // namespace pastorix
