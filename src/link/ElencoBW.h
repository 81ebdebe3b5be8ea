// `ElencoBW`: the IF filters that a receiver offers in a live mode, and their numbers on the wire.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "link/Identificazione.h"
#include "link/Interrogazioni.h"
#include "link/ReceiverModel.h"

namespace orvane {

struct VoceFiltro {
    std::string_view nome;
    int id = 0; ///< as `#SRBW` sends it and `#?RBW *` reports it; 0 leaves it to the receiver
};
using ListaFiltri = std::span<const VoceFiltro>;

/// On what the list depends besides the model.
struct CasoFiltri {
    Modalita modalita = Modalita::Analyzer; ///< Manual, or any other as Analyzer
    bool demodulatore = false;              ///< the demodulator of Manual is on
    std::string_view rigaComando = {};      ///< for `/NOCMILFRFAST`
};

/// The filters in the order of `CBXBWIF`.
ListaFiltri ElencoBW(const ReceiverModel& modello, const CasoFiltri& caso);
/// The row of a filter that the receiver reports. One that the list lacks is its last row; empty
/// for 0 where the list has no automatic filter.
std::optional<size_t> TrovaRBWSelAM(ListaFiltri filtri, int id);
/// The row of a stored choice: by its text, else by its index, limited to the last row.
size_t RigaFiltro(ListaFiltri filtri, std::string_view testo, int riga);

/// Number of the filter that goes with a span in MHz, for the filter coupled to it.
int FiltroCoupled(const ReceiverModel& modello, double spanMhz);

/// What the window shows of the filter in use.
struct FiltroMostrato {
    size_t riga = 0;               ///< to be selected without its handler
    std::string didascalia = {};   ///< "BW IF " and the name
    bool carattereStretto = false; ///< a name of 10 characters or more
    bool detectorAbilitati = true; ///< `OptDetManual`
};
/// In Manual an automatic choice stays selected, and the caption tells what the receiver took.
/// Empty: the filter stays as it is shown.
std::optional<FiltroMostrato> MostraFiltroInUso(ListaFiltri filtri, const FiltroInUso& inUso,
                                                Modalita modalita);

} // namespace orvane
