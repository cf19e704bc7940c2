#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pastorix {

// A civil date, or a moment of a civil day, in the proleptic Gregorian calendar. No time zone: what the user typed
// is what is kept. The day number counts from 1899-12-30, as in the Access files the data comes from.
struct Fecha {
    std::int32_t dia = 0;     // days since 1899-12-30
    std::int32_t segundo = 0; // seconds since midnight, 0..86399

    // Builds a date; empty when the parts are no real date (31/2) or the year is outside 100..9999.
    static std::optional<Fecha> De(int año, int mes, int diaDelMes, int hora = 0, int minuto = 0,
                                   int seg = 0);

    int Año() const;
    int Mes() const;       // 1..12
    int DiaDelMes() const; // 1..31

    Fecha MasDias(std::int32_t dias) const { return {dia + dias, segundo}; }
    Fecha UltimoDelMes() const;

    friend auto operator<=>(const Fecha&, const Fecha&) = default; // NOLINT(modernize-use-nullptr)
};

// Two-digit years are read in 1950..2049, on screen and in statements alike. Years of other lengths stay as they are.
int AñoCompleto(int año, int cifras);

// Reads a strict d/m/yy or d/m/yyyy text (blanks around it allowed); empty when it is no real date.
std::optional<Fecha> FechaDeTexto(std::string_view texto);

// ISO form in which dates lie in the database: "2026-11-22", with " hh:mm:ss" behind it only when the time is not midnight,
// so that equality and order of texts are equality and order of moments.
std::string FechaIso(Fecha fecha);
std::optional<Fecha> FechaDeIso(std::string_view texto);

// Writes a date by a mask of d, m, y, h, n, s and literal text: "dd/mm/yy", "mm/dd/yyyy", "yyyy", "ddmmyyyy", "hhnnss".
std::string FormatoFecha(Fecha fecha, std::string_view mascara);

} // namespace pastorix
