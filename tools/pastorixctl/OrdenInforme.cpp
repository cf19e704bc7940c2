#include "pastorixctl/Llamada.h"

#include "frame/Mensajes.h"
#include "reports/CatalogoDeInformes.h"
#include "reports/ListadoMaestro.h"
#include "reports/TablasDeInformes.h"
#include "reports/formularios/FormularioDeInforme.h"
#include "reports/motor/ControlInforme.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/Pdf.h"

#include <QDir>
#include <QSet>

#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace pastorix::ctl {

namespace {

// What the help of a report says of its options ("--ganadero N [--vivas]"), taken apart: one place for both.
struct OpcionDeInforme {
    QString nombre; // "ganadero"
    bool conValor = false;
    bool exigida = false;
};

std::vector<OpcionDeInforme> LeerOpciones(const QString& uso) {
    std::vector<OpcionDeInforme> opciones;
    bool entreCorchetes = false;
    for (auto palabra : uso.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (palabra.startsWith(QLatin1Char('['))) {
            entreCorchetes = true;
            palabra.remove(0, 1);
        }
        const bool cierra = palabra.endsWith(QLatin1Char(']'));
        if (palabra.startsWith(QLatin1String("--")))
            opciones.push_back({palabra.mid(2).remove(QLatin1Char(']')), false, !entreCorchetes});
        else if (!opciones.empty())
            opciones.back().conValor = true;
        if (cierra)
            entreCorchetes = false;
    }
    return opciones;
}

constexpr const char* kComunes =
    "--carpeta DIR --base personal|principal [--hoy AAAA-MM-DD] [--pdf F] [--xlsx F] "
    "[--csv CARPETA]";

// A report by its name in any letter case: one of the catalogue, or a plain list of the registers (1, 2).
struct InformePedido {
    const EntradaDeInforme* entrada = nullptr;
    int listado = 0;
    std::vector<OpcionDeInforme> opciones;
};

InformePedido BuscarInforme(const QString& nombre) {
    InformePedido pedido;
    for (const auto& e : CatalogoDeInformes())
        if (nombre.compare(QString::fromUtf8(e.nombre), Qt::CaseInsensitive) == 0) {
            pedido.entrada = &e;
            pedido.opciones = LeerOpciones(QString::fromUtf8(e.opciones));
        }
    for (const auto* lista : {"Veterinarios", "Ganaderos"})
        if (nombre.compare(QLatin1String(lista), Qt::CaseInsensitive) == 0)
            pedido.listado = lista[0] == 'V' ? 1 : 2;
    if (!pedido.entrada && pedido.listado == 0)
        throw ErrorDeUso(nombre.isEmpty() ? "Falta el nombre del informe; informe --lista los nombra"
                                          : "Informe desconocido: " + nombre.toStdString() +
                                                "; informe --lista los nombra");
    for (auto& o : LeerOpciones(QString::fromUtf8(kComunes)))
        pedido.opciones.push_back(std::move(o));
    return pedido;
}

// The call's words, checked before anything is touched.
struct Peticion {
    InformePedido informe;
    std::map<QString, QString> opciones; // "ganadero" -> value, "" for those without one

    explicit Peticion(const QStringList& argumentos) {
        QString nombre;
        QList<std::pair<QString, std::optional<QString>>> leidas;
        for (qsizetype i = 0; i < argumentos.size(); ++i) {
            const auto& a = argumentos[i];
            if (!a.startsWith(QLatin1String("--"))) {
                if (!nombre.isEmpty())
                    throw ErrorDeUso("Sobra: " + a.toStdString());
                nombre = a;
                continue;
            }
            std::optional<QString> valor;
            if (a.contains(QLatin1Char('=')))
                valor = a.section(QLatin1Char('='), 1);
            else if (i + 1 < argumentos.size() && !argumentos[i + 1].startsWith(QLatin1String("--")) &&
                     LlevaValor(a))
                valor = argumentos[++i];
            leidas.emplaceBack(Nombre(a), valor);
        }
        informe = BuscarInforme(nombre);
        for (const auto& [opcion, valor] : leidas)
            Admitir(opcion, valor);
        for (const auto& o : informe.opciones)
            if (o.exigida && !opciones.contains(o.nombre))
                throw ErrorDeUso("Falta --" + o.nombre.toStdString());
        if (!opciones.contains(kPdf) && !opciones.contains(kXlsx) && !opciones.contains(kCsv))
            throw ErrorDeUso("Falta adónde va el informe: --pdf, --xlsx o --csv");
        if (opciones.contains(kGanadero) && Opcion(kGanadero) != QLatin1String("todos")) {
            bool esNumero = false;
            Opcion(kGanadero).toDouble(&esNumero);
            if (!esNumero)
                throw ErrorDeUso("El ganadero no es un número");
        }
    }

    QString Opcion(const QString& nombre) const {
        const auto it = opciones.find(nombre);
        return it == opciones.end() ? QString() : it->second;
    }
    bool DeTodos() const { return Opcion(kGanadero) == QLatin1String("todos"); }

    static inline const QString kPdf = QStringLiteral("pdf");
    static inline const QString kXlsx = QStringLiteral("xlsx");
    static inline const QString kCsv = QStringLiteral("csv");
    static inline const QString kGanadero = QStringLiteral("ganadero");

private:
    // "--anyo" stands for "--año", which not every keyboard has.
    static QString Nombre(const QString& palabra) {
        const auto nombre = palabra.section(QLatin1Char('='), 0, 0).mid(2);
        if (nombre == QLatin1String("anyo"))
            return QStringLiteral("año");
        return nombre == QLatin1String("anyos") ? QStringLiteral("años") : nombre;
    }
    // Options without a value are few and the same everywhere.
    static bool LlevaValor(const QString& palabra) {
        const auto nombre = Nombre(palabra);
        for (const auto& e : CatalogoDeInformes())
            for (const auto& o : LeerOpciones(QString::fromUtf8(e.opciones)))
                if (o.nombre == nombre)
                    return o.conValor;
        return true;
    }
    void Admitir(const QString& nombre, const std::optional<QString>& valor) {
        const auto it = std::find_if(informe.opciones.begin(), informe.opciones.end(),
                                     [&](const OpcionDeInforme& o) { return o.nombre == nombre; });
        if (it == informe.opciones.end())
            throw ErrorDeUso("Opción desconocida: --" + nombre.toStdString());
        if (it->conValor != valor.has_value())
            throw ErrorDeUso((it->conValor ? "Falta el valor de --" : "No lleva valor: --") +
                             nombre.toStdString());
        opciones[nombre] = valor.value_or(QString());
    }
};

// A name that a file may have, free of those already taken in this run.
QString NombreDeFichero(QString nombre, double codigo, QSet<QString>& usados) {
    for (const QChar c : QStringLiteral("/\\:*?\"<>|"))
        nombre.replace(c, QLatin1Char('-'));
    if (usados.contains(nombre.toLower()))
        nombre += QStringLiteral(" (%1)").arg(codigo, 0, 'f', 0);
    usados << nombre.toLower();
    return nombre;
}

void Entregar(const Peticion& p, const InformeTerminado& informe) {
    if (const auto f = p.Opcion(Peticion::kPdf); !f.isNull())
        GuardarPdf(informe, f);
    if (const auto f = p.Opcion(Peticion::kXlsx); !f.isNull())
        GuardarXlsx(informe, f);
    if (const auto f = p.Opcion(Peticion::kCsv); !f.isNull())
        GuardarCsv(informe, f);
}

// One file per farmer, in folders.
void EntregarEnCarpetas(const Peticion& p, const InformeTerminado& informe, const QString& nombre) {
    const auto en = [&](const QString& opcion, const QString& final) {
        const auto carpeta = p.Opcion(opcion);
        if (!QDir().mkpath(carpeta))
            throw ErrorDeOrden("No se puede crear la carpeta: " + carpeta.toStdString());
        return QDir(carpeta).filePath(nombre + final);
    };
    if (!p.Opcion(Peticion::kPdf).isNull())
        GuardarPdf(informe, en(Peticion::kPdf, QStringLiteral(".pdf")));
    if (!p.Opcion(Peticion::kXlsx).isNull())
        GuardarXlsx(informe, en(Peticion::kXlsx, QStringLiteral(".xlsx")));
    if (!p.Opcion(Peticion::kCsv).isNull())
        GuardarCsv(informe, en(Peticion::kCsv, {}));
}

// The open installation, and what its forms hand over: the finished report, or the boxes that they would have shown.
class Taller {
public:
    explicit Taller(const Peticion& p)
        : m_p(p) {
        InstalarRespondedor([this](const Mensaje& m) {
            m_avisado = true;
            Imprimir(m);
            return Respuesta{};
        });
        ControlInforme::InstalarDestino([this](InformeTerminado i) { m_terminado = std::move(i); });
        AbrirInstalacion(m_sesion, p.Opcion(QStringLiteral("carpeta")),
                         p.Opcion(QStringLiteral("base")) == QLatin1String("principal"));
    }

    int Listado() {
        ListadoMaestro(m_p.informe.listado, m_sesion, m_control, nullptr);
        return EntregarUno();
    }

    int DeUno() {
        const auto formulario = Formulario();
        Poner(*formulario, Peticion::kGanadero);
        PonerResto(*formulario);
        formulario->Aceptar();
        return EntregarUno();
    }

    // A farmer whom the form refuses is told and passed over.
    int DeTodos() {
        const auto formulario = Formulario();
        int estado = 0;
        QSet<QString> usados;
        for (const auto& g : std::vector(formulario->Ofrecidos())) {
            m_avisado = false;
            m_terminado.reset();
            const auto quien = QStringLiteral("%1  %2").arg(g.id, 0, 'f', 0).arg(g.nombre.trimmed());
            try {
                formulario->PonerOpcion(Peticion::kGanadero, QString::number(g.id, 'g', 15));
                PonerResto(*formulario);
                formulario->Aceptar();
            } catch (const ErrorDeOpcion& e) {
                m_avisado = true;
                std::fprintf(stderr, "%s\n", e.what());
            }
            const bool hecho = m_terminado && !m_avisado;
            if (hecho)
                EntregarEnCarpetas(m_p, *m_terminado,
                                   NombreDeFichero(m_terminado->nombrePropuesto, g.id, usados));
            std::printf("%s: %s\n", qPrintable(quien), hecho ? "hecho" : "sin informe");
            estado = hecho ? estado : 1;
        }
        return estado;
    }

private:
    std::unique_ptr<FormularioDeInforme> Formulario() {
        std::unique_ptr<FormularioDeInforme> f(m_p.informe.entrada->crear(m_sesion, m_control, nullptr));
        if (const auto fija = QString::fromUtf8(m_p.informe.entrada->fija); !fija.isEmpty())
            f->PonerOpcion(fija.section(QLatin1Char('='), 0, 0), fija.section(QLatin1Char('='), 1));
        return f;
    }
    void Poner(FormularioDeInforme& f, const QString& nombre) const {
        if (const auto it = m_p.opciones.find(nombre); it != m_p.opciones.end())
            f.PonerOpcion(nombre, it->second);
    }
    // The farmer comes first: other choices hang from him. All his years unless told otherwise.
    void PonerResto(FormularioDeInforme& f) const {
        static const auto kAños = QStringLiteral("años");
        for (const auto& o : m_p.informe.opciones)
            if (o.nombre == kAños && !m_p.opciones.contains(kAños))
                f.PonerOpcion(kAños, QStringLiteral("todos"));
        static const QStringList ajenas{
            Peticion::kGanadero, QStringLiteral("carpeta"), QStringLiteral("base"), QStringLiteral("hoy"),
            Peticion::kPdf,      Peticion::kXlsx,           Peticion::kCsv};
        for (const auto& [nombre, valor] : m_p.opciones)
            if (!ajenas.contains(nombre))
                f.PonerOpcion(nombre, valor);
    }
    int EntregarUno() const {
        if (!m_terminado || m_avisado)
            return 1;
        Entregar(m_p, *m_terminado);
        return 0;
    }

    const Peticion& m_p;
    bool m_avisado = false;
    std::optional<InformeTerminado> m_terminado;
    Sesion m_sesion;
    TablasDeInformes m_tablas{m_sesion.conexion};
    ControlInforme m_control{m_tablas};
};

int NombrarInformes() {
    const auto linea = [](const char* nombre, const char* queEs, const char* opciones) {
        std::printf("%s: %s%s%s\n", nombre, queEs, *opciones ? "\n    " : "", opciones);
    };
    for (const auto& e : CatalogoDeInformes())
        linea(e.nombre, e.queEs, e.opciones);
    linea("Ganaderos", "Lista de ganaderos", "");
    linea("Veterinarios", "Lista de veterinarios", "");
    return 0;
}

} // namespace

int Informe(const QStringList& argumentos) {
    if (argumentos == QStringList(QStringLiteral("--lista")))
        return NombrarInformes();
    const Peticion p(argumentos);
    const auto base = p.Opcion(QStringLiteral("base"));
    if (base != QLatin1String("personal") && base != QLatin1String("principal"))
        throw ErrorDeUso("--base es personal o principal");
    FijarFecha(p.Opcion(QStringLiteral("hoy")));
    Taller taller(p);
    if (p.informe.listado != 0)
        return taller.Listado();
    return p.DeTodos() ? taller.DeTodos() : taller.DeUno();
}

} // namespace pastorix::ctl
