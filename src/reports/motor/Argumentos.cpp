#include "reports/motor/Argumentos.h"

#include "store/Textos.h"
#include "store/Valor.h"

namespace pastorix {

Argumentos::Argumentos(const LineaLeida& linea, const std::string& fichero)
    : m_linea(linea)
    , m_fichero(fichero)
    , m_usadas(linea.palabras.size(), false) {
    if (!linea.palabras.front().clave.empty() || linea.palabras.front().entreComillas)
        Fallo("la línea no empieza por una orden");
    m_usadas[0] = true;
}

void Argumentos::Fallo(const std::string& texto) const {
    FalloEnLinea(m_fichero, m_linea.numero, texto);
}

int Argumentos::Siguiente() const {
    for (std::size_t i = 0; i < m_usadas.size(); ++i) {
        if (!m_usadas[i] && m_linea.palabras[i].clave.empty())
            return static_cast<int>(i);
    }
    return -1;
}

bool Argumentos::QuedaNombre() const {
    const int i = Siguiente();
    return i >= 0 && !m_linea.palabras[static_cast<std::size_t>(i)].entreComillas;
}

std::string Argumentos::Nombre(const char* que) {
    if (!QuedaNombre())
        Fallo(std::string("falta ") + que);
    const auto i = static_cast<std::size_t>(Siguiente());
    m_usadas[i] = true;
    return m_linea.palabras[i].texto;
}

std::optional<std::string> Argumentos::TextoSiHay() {
    const int i = Siguiente();
    if (i < 0 || !m_linea.palabras[static_cast<std::size_t>(i)].entreComillas)
        return std::nullopt;
    m_usadas[static_cast<std::size_t>(i)] = true;
    return m_linea.palabras[static_cast<std::size_t>(i)].texto;
}

std::string Argumentos::Texto(const char* que) {
    auto texto = TextoSiHay();
    if (!texto)
        Fallo(std::string("falta ") + que + " entre comillas");
    return *texto;
}

double Argumentos::LeerNumero(const std::string& texto, std::string_view que, double minimo,
                              double maximo) const {
    double n = 0;
    if (!NumeroDeTexto(texto, n))
        Fallo("\"" + texto + "\" no es un número (" + std::string(que) + ")");
    if (n < minimo || n > maximo)
        Fallo(std::string(que) + " debe estar entre " + TextoNumero(minimo) + " y " + TextoNumero(maximo));
    return n;
}

double Argumentos::Numero(const char* que, double minimo, double maximo) {
    return LeerNumero(Nombre(que), que, minimo, maximo);
}

std::optional<std::string> Argumentos::Opcion(std::string_view clave) {
    for (std::size_t i = 0; i < m_usadas.size(); ++i) {
        if (!m_usadas[i] && IgualSinCaso(m_linea.palabras[i].clave, clave)) {
            m_usadas[i] = true;
            return m_linea.palabras[i].texto;
        }
    }
    return std::nullopt;
}

std::optional<double> Argumentos::OpcionNumero(std::string_view clave, double minimo, double maximo) {
    const auto texto = Opcion(clave);
    if (!texto)
        return std::nullopt;
    return LeerNumero(*texto, clave, minimo, maximo);
}

bool Argumentos::Bandera(std::string_view palabra) {
    for (std::size_t i = 0; i < m_usadas.size(); ++i) {
        const Palabra& p = m_linea.palabras[i];
        if (!m_usadas[i] && p.clave.empty() && !p.entreComillas && IgualSinCaso(p.texto, palabra)) {
            m_usadas[i] = true;
            return true;
        }
    }
    return false;
}

void Argumentos::Terminar() const {
    for (std::size_t i = 0; i < m_usadas.size(); ++i) {
        const Palabra& p = m_linea.palabras[i];
        if (!m_usadas[i])
            Fallo("sobra \"" + (p.clave.empty() ? p.texto : p.clave + "=" + p.texto) + "\"");
    }
}

std::vector<std::string> Separar(std::string_view texto, char separador) {
    std::vector<std::string> partes;
    while (true) {
        const std::size_t fin = texto.find(separador);
        partes.emplace_back(texto.substr(0, fin));
        if (fin == std::string_view::npos)
            return partes;
        texto.remove_prefix(fin + 1);
    }
}

} // namespace pastorix
