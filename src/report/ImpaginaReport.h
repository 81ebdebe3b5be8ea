// The pages of a report on a sheet, in cm: page heads, header, picture, table. What draws them is a
// PDF file or the preview.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

enum class FontPagina {
    Numero, ///< "Times New Roman"
    Righe   ///< "Courier New", slanted
};

/// At its lower left corner, or the right one; cm from the lower left corner of the sheet.
struct TestoPagina {
    float x = 0;
    float y = 0;
    std::string_view testo;
    FontPagina font = FontPagina::Righe;
    float corpo = 10; ///< points
    bool aDestra = false;
};

enum class ImmaginePagina { Logo, Misura };

struct RiquadroPagina {
    float x = 0;
    float y = 0;
    float larghezza = 0;
    float altezza = 0;
};

/// What the pages are drawn on.
struct TelaPagine {
    std::function<int()> NuovaPagina; ///< ends the page before it; the number of the new one
    std::function<void(const TestoPagina&)> Testo;
    std::function<void(ImmaginePagina, const RiquadroPagina&)> Immagine;
};

/// Lines of the table, one a call; empty behind the last one.
using ProssimaRiga = std::function<std::optional<std::string>()>;

/// `ratio`: height over width of the picture; empty for none.
void ImpaginaReport(const TelaPagine& tela, const RichiestaDocumento& richiesta,
                    std::optional<double> ratio, const ProssimaRiga& tabella);

} // namespace orvane
