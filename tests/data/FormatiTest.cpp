// The documented layouts, row by row, against the fields that the program writes.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

#include "base/Numeri.h"
#include "base/Testo.h"
#include "records/DescriviCampi.h"
#include "records/EnvRecord.h"
#include "records/PathRecord.h"
#include "records/SampleRecord.h"
#include "records/SweepHeader.h"

namespace orvane {
namespace {

struct RigaTabella {
    size_t offset;
    std::string tipo;
    std::string nome;
};

/// A field's offset, type and name, the name in backticks or absent: no row of another table.
bool RigaDiCampo(const std::vector<std::string>& celle) {
    if (celle.size() < 5 || !LeggiNumero(celle[1]))
        return false;
    const std::string nome = Rifila(celle[3]);
    return nome.empty() || nome.starts_with('`');
}

/// The tables of the document, by the heading above each.
std::map<std::string, std::vector<RigaTabella>> LeggiDocumento() {
    std::ifstream file(ORVANE_DOCS "/formats.md");
    std::map<std::string, std::vector<RigaTabella>> tabelle;
    std::string titolo;
    for (std::string riga; std::getline(file, riga);) {
        const auto celle = Dividi(riga, '|');
        if (riga.starts_with("#"))
            titolo = riga.substr(riga.find(' ') + 1);
        else if (RigaDiCampo(celle))
            tabelle[titolo].push_back(
                {std::stoul(celle[1]), Rifila(celle[2]), Sostituisci(Rifila(celle[3]), "`", "")});
    }
    return tabelle;
}

/// "i16[4]", "10 × char[60]", "604 bytes": as the document writes a field.
std::string TipoScritto(const CampoDescritto& campo) {
    const std::string quanti = std::to_string(campo.valori.size());
    if (campo.nome.empty() || campo.tipo == "bytes")
        return std::to_string(campo.byte) + " bytes";
    if (campo.valori.size() == 1)
        return campo.tipo;
    return campo.tipo.starts_with("char") ? quanti + " × " + campo.tipo
                                          : campo.tipo + "[" + quanti + "]";
}

template <class Record> void Confronta(const std::vector<RigaTabella>& tabella) {
    const std::vector<CampoDescritto> campi = DescriviRecord(Record{});
    ASSERT_EQ(tabella.size(), campi.size());
    for (size_t i = 0; i < campi.size(); ++i) {
        EXPECT_EQ(tabella[i].offset, campi[i].offset) << campi[i].nome;
        EXPECT_EQ(tabella[i].nome, campi[i].nome) << "at " << campi[i].offset;
        EXPECT_EQ(tabella[i].tipo, TipoScritto(campi[i])) << campi[i].nome;
    }
}

TEST(FormatiTest, TheDocumentTellsWhatTheProgramWrites) {
    auto tabelle = LeggiDocumento();
    ASSERT_FALSE(tabelle.empty());
    Confronta<ScanLine>(tabelle["A scan line, 1200 bytes"]);
    Confronta<SetupRecord>(tabelle["EAM: the settings, 5094 bytes"]);
    Confronta<EnvRecord>(tabelle["EPN and COL: look and link, 2096 bytes"]);
    Confronta<PathRecord>(tabelle["PTH: paths of the file dialogs, 30000 bytes"]);
    Confronta<PositionRecord>(tabelle["TM: positions"]);
    size_t posto = 0;
    for (const CampoDescritto& campo : DescriviRecord(SweepHeader{})) {
        EXPECT_EQ(campo.offset, posto) << campo.nome;
        posto += campo.byte;
    }
    EXPECT_EQ(posto, 17770u);
}

TEST(FormatiTest, TheScanRecordIsTenLinesAndItsOwnFields) {
    auto tabelle = LeggiDocumento();
    const std::vector<CampoDescritto> campi = DescriviRecord(ScanRecord{});
    const size_t perRiga = DescriviRecord(ScanLine{}).size();
    ASSERT_GT(campi.size(), 10 * perRiga);
    EXPECT_EQ(campi[9 * perRiga].gruppo, "ScanLine[9]");
    EXPECT_EQ(campi[9 * perRiga].offset, 10800u);
    const auto& tabella = tabelle["EST: a scan table, 12676 bytes"];
    ASSERT_EQ(tabella.size(), campi.size() - 10 * perRiga + 1);
    EXPECT_EQ(tabella[0].nome, "ScanLine");
    for (size_t i = 1; i < tabella.size(); ++i) {
        const CampoDescritto& campo = campi[10 * perRiga + i - 1];
        EXPECT_EQ(campo.gruppo, "");
        EXPECT_EQ(tabella[i].offset, campo.offset);
        EXPECT_EQ(tabella[i].nome, campo.nome);
        EXPECT_EQ(tabella[i].tipo, TipoScritto(campo));
    }
}

} // namespace
} // namespace orvane
