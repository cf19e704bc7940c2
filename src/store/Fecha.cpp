#include "store/Fecha.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>

namespace pastorix {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kOrigen{std::chrono::year{1899} / 12 / 30};

year_month_day Partes(std::int32_t dia) {
    return year_month_day{kOrigen + std::chrono::days{dia}};
}

// Digits only, at least one, at most nine.
bool Entero(std::string_view texto, int& n) {
    if (texto.empty() || texto.size() > 9)
        return false;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    return error == std::errc{} && fin == texto.data() + texto.size() && texto.front() != '-';
}

std::string_view SinBlancos(std::string_view t) {
    while (!t.empty() && t.front() == ' ')
        t.remove_prefix(1);
    while (!t.empty() && t.back() == ' ')
        t.remove_suffix(1);
    return t;
}

// At least `anchura` digits, zeros before them. By hand: dates are written by the ten thousand when a file is converted.
void Cifras(std::string& salida, int valor, int anchura) {
    std::array<char, 12> cifras{};
    int n = 0;
    do {
        cifras[static_cast<std::size_t>(n++)] = static_cast<char>('0' + valor % 10);
        valor /= 10;
    } while (valor > 0);
    salida.append(static_cast<std::size_t>(std::max(0, anchura - n)), '0');
    while (n > 0)
        salida += cifras[static_cast<std::size_t>(--n)];
}

} // namespace

std::optional<Fecha> Fecha::De(int año, int mes, int diaDelMes, int hora, int minuto, int seg) {
    if (año < 100 || año > 9999 || mes < 1 || mes > 12 || diaDelMes < 1 || diaDelMes > 31)
        return std::nullopt;
    if (hora < 0 || hora > 23 || minuto < 0 || minuto > 59 || seg < 0 || seg > 59)
        return std::nullopt;
    const year_month_day ymd{std::chrono::year{año}, std::chrono::month{static_cast<unsigned>(mes)},
                             std::chrono::day{static_cast<unsigned>(diaDelMes)}};
    if (!ymd.ok())
        return std::nullopt;
    const auto dias = (sys_days{ymd} - kOrigen).count();
    return Fecha{static_cast<std::int32_t>(dias), hora * 3600 + minuto * 60 + seg};
}

int Fecha::Año() const {
    return static_cast<int>(Partes(dia).year());
}
int Fecha::Mes() const {
    return static_cast<int>(static_cast<unsigned>(Partes(dia).month()));
}
int Fecha::DiaDelMes() const {
    return static_cast<int>(static_cast<unsigned>(Partes(dia).day()));
}

Fecha Fecha::UltimoDelMes() const {
    const auto p = Partes(dia);
    const sys_days ultimo{p.year() / p.month() / std::chrono::last};
    return {static_cast<std::int32_t>((ultimo - kOrigen).count()), 0};
}

int AñoCompleto(int año, int cifras) {
    if (cifras > 2)
        return año;
    return año < 50 ? 2000 + año : 1900 + año;
}

std::optional<Fecha> FechaDeTexto(std::string_view texto) {
    texto = SinBlancos(texto);
    const auto b1 = texto.find('/');
    const auto b2 = b1 == std::string_view::npos ? b1 : texto.find('/', b1 + 1);
    if (b2 == std::string_view::npos || texto.find('/', b2 + 1) != std::string_view::npos)
        return std::nullopt;
    const auto año = texto.substr(b2 + 1);
    int d = 0;
    int m = 0;
    int a = 0;
    if (!Entero(texto.substr(0, b1), d) || !Entero(texto.substr(b1 + 1, b2 - b1 - 1), m) || !Entero(año, a))
        return std::nullopt;
    if (año.size() != 2 && año.size() != 4)
        return std::nullopt;
    return Fecha::De(AñoCompleto(a, static_cast<int>(año.size())), m, d);
}

std::string FechaIso(Fecha fecha) {
    std::string salida;
    const auto p = Partes(fecha.dia);
    Cifras(salida, static_cast<int>(p.year()), 4);
    salida += '-';
    Cifras(salida, static_cast<int>(static_cast<unsigned>(p.month())), 2);
    salida += '-';
    Cifras(salida, static_cast<int>(static_cast<unsigned>(p.day())), 2);
    if (fecha.segundo != 0) {
        salida += ' ';
        Cifras(salida, fecha.segundo / 3600, 2);
        salida += ':';
        Cifras(salida, fecha.segundo / 60 % 60, 2);
        salida += ':';
        Cifras(salida, fecha.segundo % 60, 2);
    }
    return salida;
}

std::optional<Fecha> FechaDeIso(std::string_view t) {
    const auto dos = [&](std::size_t i) {
        const int d = t[i] - '0';
        const int u = t[i + 1] - '0';
        return d < 0 || d > 9 || u < 0 || u > 9 ? -1 : d * 10 + u;
    };
    if ((t.size() != 10 && t.size() != 19) || t[4] != '-' || t[7] != '-')
        return std::nullopt;
    const int siglo = dos(0);
    const int resto = dos(2);
    if (siglo < 0 || resto < 0)
        return std::nullopt;
    if (t.size() == 10)
        return Fecha::De(siglo * 100 + resto, dos(5), dos(8));
    if (t[10] != ' ' || t[13] != ':' || t[16] != ':')
        return std::nullopt;
    return Fecha::De(siglo * 100 + resto, dos(5), dos(8), dos(11), dos(14), dos(17));
}

std::string FormatoFecha(Fecha fecha, std::string_view mascara) {
    std::string salida;
    for (std::size_t i = 0; i < mascara.size();) {
        const char letra = mascara[i];
        std::size_t n = 1;
        while (i + n < mascara.size() && mascara[i + n] == letra)
            ++n;
        const int ancho = static_cast<int>(n);
        switch (letra) {
        case 'd':
            Cifras(salida, fecha.DiaDelMes(), ancho);
            break;
        case 'm':
            Cifras(salida, fecha.Mes(), ancho);
            break;
        case 'y':
            Cifras(salida, ancho <= 2 ? fecha.Año() % 100 : fecha.Año(), ancho);
            break;
        case 'h':
            Cifras(salida, fecha.segundo / 3600, ancho);
            break;
        case 'n':
            Cifras(salida, fecha.segundo / 60 % 60, ancho);
            break;
        case 's':
            Cifras(salida, fecha.segundo % 60, ancho);
            break;
        default:
            salida.append(n, letra);
            break;
        }
        i += n;
    }
    return salida;
}

} // namespace pastorix
