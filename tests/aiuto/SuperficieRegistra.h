// A picture surface for tests: keeps every call, in the user coordinates it came in.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "graph/Superficie.h"

namespace orvane::prova {

struct SuperficieRegistra : Superficie {
    struct LineaFatta {
        Punto da;
        Punto a;
        Penna penna;
    };
    struct SpezzataFatta {
        std::vector<Punto> punti;
        Penna penna;
        bool ritagliata;
    };
    struct ColonneFatte {
        double sinistra;
        double passo;
        std::vector<TrattoColonna> colonne;
    };
    struct TestoFatto {
        Punto dove;
        Ancora ancora;
        std::string testo;
        int32_t colore;
    };
    struct RettangoloFatto {
        Punto angolo;
        Punto opposto;
        int32_t colore;
    };

    explicit SuperficieRegistra(double larghezza = 1100, double altezza = 540)
        : larghezza_(larghezza), altezza_(altezza) {}

    std::vector<LineaFatta> linee;
    std::vector<SpezzataFatta> spezzate;
    std::vector<ColonneFatte> colonne;
    std::vector<TestoFatto> testi;
    std::vector<RettangoloFatto> rettangoli;
    std::vector<std::array<Punto, 3>> triangoli;
    Punto angolo; ///< the picture's corners in the present user coordinates
    Punto opposto;
    int ritagli = 0;
    bool prendeColonne = false; ///< as a surface of pixels does

    double LarghezzaPixel() const override { return larghezza_; }
    double AltezzaPixel() const override { return altezza_; }
    void Scala(double sinistra, double alto, double destra, double basso) override {
        angolo = {sinistra, alto};
        opposto = {destra, basso};
    }
    void Linea(Punto da, Punto a, const Penna& penna) override { linee.push_back({da, a, penna}); }
    void Spezzata(std::span<const Punto> punti, const Penna& penna) override {
        spezzate.push_back({{punti.begin(), punti.end()}, penna, ritagli > 0});
    }
    bool Colonne(double sinistra, double passo, std::span<const TrattoColonna> tratti,
                 const Penna&) override {
        if (prendeColonne)
            colonne.push_back({sinistra, passo, {tratti.begin(), tratti.end()}});
        return prendeColonne;
    }
    void Rettangolo(Punto da, Punto a, int32_t riempimento, double) override {
        rettangoli.push_back({da, a, riempimento});
    }
    void TriangoloSfumato(const Punto (&v)[3], const int32_t (&)[3]) override {
        triangoli.push_back({v[0], v[1], v[2]});
    }
    void Testo(Punto dove, Ancora ancora, const std::string& testo, int32_t colore,
               double) override {
        testi.push_back({dove, ancora, testo, colore});
    }
    /// A fixed pitch: six tenths of the height for each character.
    Punto DimensioneTesto(const std::string& testo, double altezza) const override {
        const auto lettere =
            std::count_if(testo.begin(), testo.end(), [](char c) { return (c & 0xc0) != 0x80; });
        return {0.6 * altezza * static_cast<double>(lettere), 1.2 * altezza};
    }
    void Ritaglio(Punto, Punto) override { ++ritagli; }
    void FineRitaglio() override {
        --ritagli;
        EXPECT_GE(ritagli, 0);
    }

    /// Pixel of a place given in the present user coordinates.
    Punto Pixel(Punto p) const {
        return {(p.x - angolo.x) / (opposto.x - angolo.x) * larghezza_,
                (p.y - angolo.y) / (opposto.y - angolo.y) * altezza_};
    }

private:
    double larghezza_;
    double altezza_;
};

} // namespace orvane::prova
