#pragma once

#include "frame/campos/ReglasDeCampo.h"

#include <span>

namespace pastorix {

// One field of a sheet. The table of a sheet's fields drives its layout, captions, input limits, key filters, reading and writing;
// a sheet is that table and what it does otherwise.
struct CampoFicha {
    int indice;          // by which the sheet knows it; in the control array too: CT_Estandar(indice)
    const char* columna; // of the sheet's table; nullptr for a field that the sheet reads and writes itself
    const char* rotulo;  // caption, with mnemonic; "" for none
    ClaseCampo clase;
    int anchura;                      // most characters that can be typed; 0 as many as the column takes
    int fila, columnaRejilla;         // place in the sheet's grid of fields, which is also the tab order
    int ancho = 1;                    // grid columns that it spans
    const char* nombreAccesible = ""; // where there is no caption
    int hoja = 0;                     // which of the sheet's grids it stands in, for sheets with tabs
    SiNoVale siNoVale = SiNoVale::TalCual;
    const char* control = nullptr; // its own name, where it is not of the array
    bool derivado = false;         // worked out by the sheet: shown, written, never typed
    const char* explicacion = "";  // in words, where the caption is a code
    bool ceroVacio = false;        // a stored 0 shows as nothing
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
    const char* explicacion = "";
    // A field that stands in sight only while this item is chosen ("Otra", whatever its case); -1 none.
    const char* itemDetallado = nullptr;
    int campoDetalle = -1;
};

// A flag: a check box, stored as 0 and 1. Null reads as 0.
struct MarcaFicha {
    const char* nombre; // of the control: "Ch_E(6)"
    const char* columna;
    const char* rotulo;
    int fila, columnaRejilla;
    int hoja = 0;
    int indice = 0; // by which the sheet knows it
    const char* explicacion = "";
    int si = 1; // what is stored for a tick; -1 in the Yes/No columns
};

// Fields over a row, as data.
struct DefinicionHoja {
    const char* arreglo; // name of the control array: "CT_Estandar"
    const char* tabla;
    std::span<const CampoFicha> campos;
    std::span<const ComboFicha> combos{};
    std::span<const MarcaFicha> marcas{};
};

// A record sheet as data.
struct DefinicionFicha {
    const char* titulo;
    DefinicionHoja hoja;
    const char* columnaClave;
    const char* minimos = "";   // message when the code or a mandatory field is empty
    int indiceObligatorio = -1; // the field besides the code
    int indiceFechaAlta = -1;   // field that gets today when a record is added
    const char* mascaraFechaAlta = "dd/mm/yy";
};

} // namespace pastorix
