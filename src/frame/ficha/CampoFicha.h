#pragma once

#include <span>

namespace pastorix {

// What may be typed into a field of a sheet.
enum class ClaseCampo {
    Codigo, // digits; the record's key as the user sees it
    Texto,
    Fecha,    // digits and "/"
    Decimal,  // digits and one comma
    ConSigno, // the same, and a minus sign in front
    Numero,   // digits
    Memo,     // text of several lines
};

// One field of a sheet. The table of a sheet's fields drives its layout, captions, input limits, key filters, reading and writing;
// a sheet is that table and what it does otherwise.
struct CampoFicha {
    int indice;          // in the control array: CT_Estandar(indice)
    const char* columna; // of the sheet's table; nullptr for a field that the sheet reads and writes itself
    const char* rotulo;  // caption, with mnemonic; "" for none
    ClaseCampo clase;
    int anchura;                      // most characters that can be typed; 0 as many as the column takes
    int fila, columnaRejilla;         // place in the sheet's grid of fields, which is also the tab order
    int ancho = 1;                    // grid columns that it spans
    const char* nombreAccesible = ""; // where there is no caption
    int hoja = 0;                     // which of the sheet's grids it stands in, for sheets with tabs
    bool vaciaSinFecha =
        false; // a date field: what is no date empties the column instead of leaving it as it was
};

// A coded field: a combo with its list. What is stored is the text of its item; an empty first item takes a choice back.
struct ComboFicha {
    const char* nombre; // of the control: "CD_Raza"
    const char* columna;
    const char* rotulo; // caption, with mnemonic
    std::span<const char* const> lista;
    int fila, columnaRejilla;
    int hoja = 0;
    bool porTexto =
        false; // may hold a text that is not in the list; otherwise such a text shows as no choice
};

// A sheet as data.
struct DefinicionFicha {
    const char* titulo;
    const char* arreglo; // name of the control array: "CT_Estandar"
    const char* tabla;
    const char* columnaClave;
    std::span<const CampoFicha> campos;
    int indiceFechaAlta = -1; // field that gets today when a record is added
    const char* mascaraFechaAlta = "dd/mm/yy";
    const char* minimos = "";   // message when the code or a mandatory field is empty
    int indiceObligatorio = -1; // the field besides the code
    std::span<const ComboFicha> combos{};
};

} // namespace pastorix
