#include "reports/motor/ErrorInforme.h"
#include "reports/motor/Escritura.h"
#include "reports/motor/Exportacion.h"
#include "reports/motor/Plantilla.h"
#include "reports/motor/Zip.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <xlsxwriter.h>

#include <algorithm>
#include <map>

namespace pastorix {

namespace {

constexpr double AnchoMinimo = 8; // letters
constexpr double AnchoMaximo = 60;
constexpr qsizetype TextoMaximo = 32'000; // letters of a cell; the format ends at 32767
constexpr lxw_row_t Cabeceras = 2; // row of the headings, from 0: above it whose sheet it is, and a blank
constexpr std::size_t FilasMaximas = 1'048'573;

// The library does not look whether its temporary files took what it wrote, and packs what a full disk has left of them.
bool EstaEntero(const QByteArray& libro) {
    const auto partes = PartesDelZip(libro);
    return partes && std::all_of(partes->begin(), partes->end(), [](const auto& parte) {
               QXmlStreamReader xml(parte.second);
               while (!xml.atEnd())
                   xml.readNext();
               return !xml.hasError();
           });
}

// A workbook being written; the library's handle never leaves it.
class Libro {
public:
    // carpeta: where the library may put its temporary files.
    Libro(const QString& fichero, const QString& carpeta)
        : m_carpeta(QFile::encodeName(carpeta)) {
        lxw_workbook_options opciones{};
        opciones.tmpdir = m_carpeta.data();
        m_libro = workbook_new_opt(QFile::encodeName(fichero).constData(), &opciones);
        if (!m_libro)
            throw std::bad_alloc();
        m_cabecera = workbook_add_format(m_libro);
        format_set_bold(m_cabecera);
        format_set_bg_color(m_cabecera, 0xE9EFEB);
        format_set_bottom(m_cabecera, LXW_BORDER_THIN);
        format_set_text_wrap(m_cabecera);
        format_set_align(m_cabecera, LXW_ALIGN_VERTICAL_BOTTOM);
        m_titulo = workbook_add_format(m_libro);
        format_set_bold(m_titulo);
        format_set_font_size(m_titulo, 13);
    }
    ~Libro() {
        if (m_libro)
            workbook_close(m_libro);
    }
    Libro(const Libro&) = delete;
    Libro& operator=(const Libro&) = delete;

    void PonerTitulo(const QString& titulo) {
        QByteArray texto = titulo.trimmed().left(200).toUtf8(); // the library takes them by plain pointers
        QByteArray programa("PASTORIX");
        lxw_doc_properties propiedades{};
        propiedades.title = texto.data();
        propiedades.company = programa.data();
        workbook_set_properties(m_libro, &propiedades);
    }

    void PonerHoja(const HojaDatos& hoja, const QString& nombre, const QString& encabezado) {
        lxw_worksheet* hojaNueva = workbook_add_worksheet(m_libro, nombre.toUtf8().constData());
        if (!hojaNueva)
            throw ErrorInforme(CodigoInforme::Escritura,
                               "Nombre de hoja no admitido: " + nombre.toStdString());
        if (hoja.filas.size() > FilasMaximas)
            throw ErrorInforme(CodigoInforme::Limite,
                               "La hoja " + nombre.toStdString() + " tendría demasiadas filas");
        for (std::size_t c = 0; c < hoja.columnas.size(); ++c)
            PonerColumna(hojaNueva, hoja, c);
        const auto ultimaColumna =
            static_cast<lxw_col_t>(hoja.columnas.empty() ? 0 : hoja.columnas.size() - 1);
        worksheet_write_string(hojaNueva, 0, 0, encabezado.left(TextoMaximo).toUtf8().constData(), m_titulo);
        worksheet_freeze_panes(hojaNueva, Cabeceras + 1, 0);
        worksheet_autofilter(hojaNueva, Cabeceras, 0, Cabeceras + static_cast<lxw_row_t>(hoja.filas.size()),
                             ultimaColumna);
        worksheet_set_landscape(hojaNueva);
        worksheet_set_paper(hojaNueva, 9); // A4
        worksheet_fit_to_pages(hojaNueva, 1, 0);
        worksheet_repeat_rows(hojaNueva, 0, Cabeceras);
    }

    lxw_error Cerrar() {
        const lxw_error error = workbook_close(m_libro);
        m_libro = nullptr;
        return error;
    }

private:
    lxw_format* Formato(const std::string& mascara) {
        lxw_format*& formato = m_formatos[mascara];
        if (!formato) {
            formato = workbook_add_format(m_libro);
            format_set_num_format(formato, mascara.c_str());
        }
        return formato;
    }

    void PonerColumna(lxw_worksheet* hojaNueva, const HojaDatos& hoja, std::size_t c) {
        const HojaDatos::Columna& columna = hoja.columnas[c];
        const auto lugar = static_cast<lxw_col_t>(c);
        worksheet_write_string(hojaNueva, Cabeceras, lugar,
                               columna.titulo.left(TextoMaximo).toUtf8().constData(), m_cabecera);
        double ancho = std::clamp(double(columna.titulo.size()) + 3, AnchoMinimo, 24.0);
        for (std::size_t f = 0; f < hoja.filas.size(); ++f) {
            ancho = std::max(ancho, PonerCelda(hojaNueva, Cabeceras + 1 + static_cast<lxw_row_t>(f), lugar,
                                               hoja.filas[f][c], columna));
        }
        worksheet_set_column(hojaNueva, lugar, lugar, std::min(ancho, AnchoMaximo), nullptr);
    }

    // Returns the width that the cell would like, in letters.
    double PonerCelda(lxw_worksheet* hoja, lxw_row_t fila, lxw_col_t columna, const Valor& valor,
                      const HojaDatos::Columna& datos) {
        const auto* fecha = std::get_if<Fecha>(&valor);
        if (EsNulo(valor))
            return 0;
        if (fecha && fecha->Año() >= 1900) {
            lxw_datetime momento{fecha->Año(),
                                 fecha->Mes(),
                                 fecha->DiaDelMes(),
                                 fecha->segundo / 3600,
                                 fecha->segundo / 60 % 60,
                                 double(fecha->segundo % 60)};
            const bool suya = ClaseDe(datos.formato) == ClaseDeMascara::Fecha;
            worksheet_write_datetime(hoja, fila, columna, &momento,
                                     Formato(suya ? datos.formato : "dd/mm/yyyy"));
            return 11;
        }
        if (fecha || std::holds_alternative<std::string>(valor)) {
            const QString texto =
                QString::fromStdString(fecha ? FormatoFecha(*fecha, "dd/mm/yyyy") : TextoDe(valor))
                    .left(TextoMaximo);
            worksheet_write_string(hoja, fila, columna, texto.toUtf8().constData(), nullptr);
            return double(texto.size()) + 1;
        }
        const bool suya = ClaseDe(datos.formato) == ClaseDeMascara::Numero;
        worksheet_write_number(hoja, fila, columna, NumeroDe(valor), suya ? Formato(datos.formato) : nullptr);
        return double(TextoDe(valor).size()) + 1;
    }

    QByteArray m_carpeta; // the library keeps a pointer to it
    lxw_workbook* m_libro = nullptr;
    lxw_format* m_cabecera = nullptr;
    lxw_format* m_titulo = nullptr;
    std::map<std::string, lxw_format*> m_formatos;
};

} // namespace

void GuardarXlsx(const InformeTerminado& informe, const QString& fichero) {
    // The library writes by file name only: it writes aside, and the result takes the place of the old file.
    const QTemporaryDir aparte;
    const QString temporal = aparte.filePath(QStringLiteral("libro.xlsx"));
    QByteArray bytes;
    if (aparte.isValid()) {
        Libro libro(temporal, aparte.path());
        libro.PonerTitulo(informe.titulo);
        const QStringList nombres = NombresDeHojas(informe.hojas);
        for (std::size_t i = 0; i < informe.hojas.size(); ++i)
            libro.PonerHoja(informe.hojas[i], nombres.at(static_cast<qsizetype>(i)), informe.encabezado);
        QFile escrito(temporal);
        if (libro.Cerrar() == LXW_NO_ERROR && escrito.open(QIODevice::ReadOnly))
            bytes = escrito.readAll();
    }
    if (!EstaEntero(bytes))
        NoSePuedeEscribir(fichero, "no queda sitio, o no hay permiso, para los ficheros temporales en " +
                                       QDir::toNativeSeparators(QDir::tempPath()).toStdString());
    EscribirFicheros({{fichero, bytes}});
}

} // namespace pastorix
