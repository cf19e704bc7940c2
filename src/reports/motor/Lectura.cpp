#include "reports/motor/Lectura.h"

#include "reports/motor/ErrorInforme.h"
#include "store/Textos.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pastorix {

namespace {

constexpr int HondoMaximo = 16;
constexpr int ElementosMaximos = 5000;

template <typename T, std::size_t N>
T Elegir(const Argumentos& a, const std::string& texto,
         const std::array<std::pair<const char*, T>, N>& valores) {
    std::string lista;
    for (const auto& [nombre, valor] : valores) {
        if (IgualSinCaso(nombre, texto))
            return valor;
        lista += (lista.empty() ? "" : ", ") + std::string(nombre);
    }
    a.Fallo("\"" + texto + "\" no es ninguno de: " + lista);
}

unsigned LeerBordes(const Argumentos& a, const std::string& texto) {
    static constexpr std::array<std::pair<const char*, unsigned>, 6> lados{{{"todo", TodosLosLados},
                                                                            {"arriba", LadoArriba},
                                                                            {"abajo", LadoAbajo},
                                                                            {"izquierda", LadoIzquierdo},
                                                                            {"derecha", LadoDerecho},
                                                                            {"nada", SinLados}}};
    unsigned bordes = SinLados;
    for (const std::string& lado : Separar(texto, ','))
        bordes |= Elegir(a, lado, lados);
    return bordes;
}

} // namespace

Lectura::Lectura(std::string_view texto, const std::string& fichero)
    : m_lineas(CortarLineas(texto, fichero)) {
    d.fichero = fichero;
}

void Lectura::Bloque(const Argumentos& apertura, const std::function<void(Argumentos&)>& linea) {
    if (++m_hondo > HondoMaximo)
        apertura.Fallo("demasiados bloques unos dentro de otros");
    while (m_pos < m_lineas.size()) {
        Argumentos a(m_lineas[m_pos++], d.fichero);
        if (a.Orden() == "fin") {
            a.Terminar();
            --m_hondo;
            return;
        }
        linea(a);
    }
    apertura.Fallo("falta el \"fin\" del bloque que empieza aquí");
}

void Lectura::Todo(const std::function<void(Argumentos&)>& linea) {
    if (m_lineas.empty())
        FalloEnLinea(d.fichero, 1, "el informe está vacío");
    while (m_pos < m_lineas.size()) {
        Argumentos a(m_lineas[m_pos++], d.fichero);
        linea(a);
    }
}

void Lectura::Incluir(std::string_view texto, const std::string& fichero,
                      const std::function<void(Argumentos&)>& linea) {
    auto lineas = std::exchange(m_lineas, CortarLineas(texto, fichero));
    const std::size_t pos = std::exchange(m_pos, 0);
    std::string suyo = std::exchange(d.fichero, fichero);
    Todo(linea);
    m_lineas = std::move(lineas);
    m_pos = pos;
    d.fichero = std::move(suyo);
}

Color Lectura::LeerColor(const Argumentos& a, const std::string& texto) const {
    if (texto.size() == 7 && texto[0] == '#' &&
        texto.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos)
        return static_cast<Color>(std::stoul(texto.substr(1), nullptr, 16));
    const auto it = colores.find(Minusculas(texto));
    if (it == colores.end())
        a.Fallo("\"" + texto + "\" no es un color declarado ni #rrggbb");
    return it->second;
}

void Lectura::LeerAspecto(Argumentos& a, Aspecto& aspecto) const {
    if (const auto estilo = a.Opcion("estilo")) {
        const auto it = estilos.find(Minusculas(*estilo));
        if (it == estilos.end())
            a.Fallo("el estilo \"" + *estilo + "\" no está declarado");
        aspecto = it->second;
    }
    aspecto.tamaño = a.OpcionNumero("tamaño", 3, 72).value_or(aspecto.tamaño);
    aspecto.encoger = a.OpcionNumero("encoger", 3, 72).value_or(aspecto.encoger);
    aspecto.negrita = (aspecto.negrita || a.Bandera("negrita")) && !a.Bandera("normal");
    aspecto.cursiva = aspecto.cursiva || a.Bandera("cursiva");
    aspecto.ajustar = aspecto.ajustar || a.Bandera("ajustar");
    if (const auto color = a.Opcion("color"))
        aspecto.color = LeerColor(a, *color);
    if (const auto fondo = a.Opcion("fondo"))
        aspecto.fondo = LeerColor(a, *fondo);
    if (const auto alinear = a.Opcion("alinear")) {
        static constexpr std::array<std::pair<const char*, Alineacion>, 3> valores{
            {{"izquierda", Alineacion::Izquierda},
             {"centro", Alineacion::Centro},
             {"derecha", Alineacion::Derecha}}};
        aspecto.alineacion = Elegir(a, *alinear, valores);
    }
    if (const auto vertical = a.Opcion("vertical")) {
        static constexpr std::array<std::pair<const char*, Vertical>, 3> valores{
            {{"arriba", Vertical::Arriba}, {"centro", Vertical::Centro}, {"abajo", Vertical::Abajo}}};
        aspecto.vertical = Elegir(a, *vertical, valores);
    }
    if (const auto borde = a.Opcion("borde"))
        aspecto.bordes = LeerBordes(a, *borde);
    if (const auto color = a.Opcion("color-borde"))
        aspecto.colorBorde = LeerColor(a, *color);
    aspecto.grosor = a.OpcionNumero("grosor", 0.02, 5).value_or(aspecto.grosor);
    aspecto.relleno = a.OpcionNumero("relleno", 0, 50).value_or(aspecto.relleno);
    aspecto.radio = a.OpcionNumero("radio", 0, 50).value_or(aspecto.radio);
    if (const auto vacio = a.Opcion("vacio"))
        aspecto.vacio = *vacio;
}

int Lectura::Tabla(const Argumentos& a, const std::string& nombre) const {
    const int tabla = d.BuscarTabla(nombre);
    if (tabla < 0)
        a.Fallo("la tabla \"" + nombre + "\" no está declarada");
    return tabla;
}

int Lectura::Columna(const Argumentos& a, int tabla, const std::string& nombre) const {
    const int columna = d.BuscarColumna(tabla, nombre);
    if (columna < 0)
        a.Fallo("la columna \"" + nombre + "\" no está declarada en la tabla \"" +
                d.tablas[static_cast<std::size_t>(tabla)].nombre + "\"");
    return columna;
}

RefCampo Lectura::Campo(const Argumentos& a, const std::string& nombre) const {
    const std::size_t punto = nombre.find('.');
    if (punto == std::string::npos)
        a.Fallo("\"" + nombre + "\" no está escrito como Tabla.Columna");
    const int tabla = Tabla(a, nombre.substr(0, punto));
    return {tabla, Columna(a, tabla, nombre.substr(punto + 1))};
}

std::vector<Lazo> Lectura::Lazos(Argumentos& a, int tabla, const Ambito& ambito) const {
    std::vector<Lazo> lazos;
    const auto opcion = a.Opcion("atada");
    if (!opcion)
        return lazos;
    for (const std::string& par : Separar(*opcion, ',')) {
        const std::vector<std::string> lados = Separar(par, ':');
        if (lados.size() != 2)
            a.Fallo("un lazo se escribe atada=Columna:Tabla.Columna");
        const Lazo lazo{{tabla, Columna(a, tabla, lados[0])}, Campo(a, lados[1])};
        if (std::find(ambito.abiertas.begin(), ambito.abiertas.end(), lazo.exterior.tabla) ==
            ambito.abiertas.end())
            a.Fallo("la tabla de \"" + lados[1] + "\" no tiene aquí ninguna fila a la que atarse");
        lazos.push_back(lazo);
    }
    return lazos;
}

Plantilla Lectura::Texto(const Argumentos& a, const std::string& texto, const Ambito& ambito) const {
    try {
        Plantilla plantilla = LeerPlantilla(texto, d, ambito);
        for (Pieza& pieza : plantilla)
            pieza.linea = a.Linea();
        return plantilla;
    } catch (const ErrorInforme& e) {
        a.Fallo(e.what());
    }
}

Formula Lectura::Condicion(Argumentos& a, const char* opcion, const Ambito& ambito) const {
    const auto texto = a.Opcion(opcion);
    if (!texto)
        return {};
    try {
        return LeerCondicion(*texto, d, ambito);
    } catch (const ErrorInforme& e) {
        a.Fallo(e.what());
    }
}

void Lectura::ContarElemento(const Argumentos& a) {
    if (++m_elementos > ElementosMaximos)
        a.Fallo("el informe tiene demasiados elementos");
}

} // namespace pastorix
