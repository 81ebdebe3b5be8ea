// A desk with a table, a header and a picture, from which tests make documents.
#pragma once

#include "base/PaginaCodici.h"
#include "base/Testo.h"
#include "data/ScrivaniaProva.h"
#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane::prova {

struct VistaAttesaProva : VistaAttesa {
    std::vector<std::string> detti;
    void MostraAttesa(const std::string& testo) override { detti.push_back(testo); }
    void ChiudiAttesa() override { detti.push_back("."); }
};

struct DocumentiProva : ProvaDati {
    VistaAttesaProva vista;

    /// A BMP whose pixels are all white.
    static std::string Bmp(int larghezza, int altezza) {
        const auto passo = static_cast<size_t>((larghezza * 3 + 3) / 4 * 4);
        std::string byte(54 + passo * static_cast<size_t>(altezza), '\xFF');
        byte.replace(0, 54, 54, '\0').replace(0, 2, "BM");
        byte[10] = 54, byte[14] = 40, byte[26] = 1, byte[28] = 24;
        byte[18] = static_cast<char>(larghezza % 256),
        byte[19] = static_cast<char>(larghezza / 256);
        byte[22] = static_cast<char>(altezza % 256), byte[23] = static_cast<char>(altezza / 256);
        return byte;
    }
    static std::string Righe(const std::string& nome, int quante) {
        std::string testo;
        for (int i = 0; i < quante; ++i)
            testo += nome + " " + std::to_string(i) + "\r\n";
        return testo;
    }
    /// The files, and what asks for a document of them. `ratio` 0: no picture.
    RichiestaDocumento Chiedi(int header, int righe, double ratio,
                              const std::string& uscita) const {
        Metti("Header.TXT", Righe("header", header));
        Metti("r.TPT", Righe("row", righe));
        if (ratio > 0)
            Metti("r.TPI", Bmp(400, static_cast<int>(400 * ratio)));
        return {.TablePath = Host("r.TPT"),
                .ImagePath = ratio > 0 ? Host("r.TPI") : std::filesystem::path(),
                .HeaderPath = Host("Header.TXT"),
                .Title = "M (1)",
                .OutPath = Host(uscita)};
    }
    EsitoDocumento Converti(const RichiestaDocumento& r) {
        return ConvertiTestoInPDFRTF(s, vista, r);
    }
};

} // namespace orvane::prova
