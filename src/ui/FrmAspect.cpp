#include "ui/FrmAspect.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QScreen>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "data/Panels.h"
#include "ui/Moduli.h"
#include "ui/Pulsantiera.h"

namespace orvane {

enum class GenereRiga { Lista, Cursore, Casella };

struct RigaAspetto {
    const char* gruppo; ///< heading in front of the row; null: the one above goes on
    const char* nome;
    const char* didascalia;
    const char* aiuto;
    int Aspetto::*campo;
    GenereRiga genere;
    const char* testi; ///< entries of a list, parted by "|"; behind a slider its unit
    int passo;
    bool decimi;
};

namespace {

constexpr auto kLista = GenereRiga::Lista;
constexpr auto kCursore = GenereRiga::Cursore;
constexpr RigaAspetto kRighe[] = {
    {"Window", "CBXStyle", "Style", "Colours of the windows", &Aspetto::stile, kLista,
     "System|Light|Dark", 1, false},
    {nullptr, "SLDTextTables", "Text of tables", "Size of the text in the scan tables",
     &Aspetto::testoTabelle, kCursore, "%", 5, false},
    {nullptr, "SLDListWidth", "Archive width", "Width of the list of measures",
     &Aspetto::larghezzaArchivio, kCursore, "letters", 1, false},
    {nullptr, "SLDSettingsWidth", "Settings width", "Width of the column on the right",
     &Aspetto::larghezzaComuni, kCursore, "letters", 1, false},
    {nullptr, "SLDFootHeight", "Foot height", "Height of the panel beneath the picture",
     &Aspetto::altezzaPiede, kCursore, "%", 1, false},
    {"Picture", "SLDTextGraph", "Text of the picture", "Size of numbers and readings",
     &Aspetto::testoGrafico, kCursore, "%", 5, false},
    {nullptr, "SLDTraceWidth", "Trace width",
     "Width of traces; never less than a pixel of the screen", &Aspetto::spessoreTracce, kCursore,
     "px", 5, true},
    {nullptr, "CHKSmooth", "Smooth traces", "Edges of traces are blended with the ground",
     &Aspetto::lisce, GenereRiga::Casella, nullptr, 1, false},
    {nullptr, "CBXGridLines", "Grid lines", "Which lines of the grid are drawn", &Aspetto::linee,
     kLista, "All|Main lines|None", 1, false},
    {nullptr, "SLDGridStrength", "Grid strength", "How strongly the grid shows on the screen",
     &Aspetto::opacitaGriglia, kCursore, "%", 5, false},
};

QString TestoValore(const RigaAspetto& riga, int valore) {
    const QString numero =
        riga.decimi ? QString::number(valore / 10.0, 'f', 1) : QString::number(valore);
    return numero + QLatin1Char(' ') + QLatin1String(riga.testi);
}

} // namespace

FrmAspect::FrmAspect(Scrivania& scrivania, const QString& stileFisso, QWidget* padre)
    : QDialog(padre), scrivania_(scrivania), prima_(scrivania.env),
      aspetto_(LeggiAspetto(scrivania.env)), anteprima_(new AnteprimaGrafico(scrivania.env, this)) {
    setObjectName(QStringLiteral("FrmAspect"));
    setWindowTitle(tr("Aspect"));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(20, 18, 20, 16);
    colonna->setSpacing(18);
    auto* corpo = new QHBoxLayout;
    corpo->setSpacing(24);
    corpo->addWidget(CreaModulo(stileFisso));
    corpo->addWidget(anteprima_, 1);
    colonna->addLayout(corpo, 1);
    auto* normale = CreaPulsante(QStringLiteral("CMBDefault"), tr("Default"),
                                 tr("Everything as on the first start"), this);
    connect(normale, &QPushButton::clicked, this, [this] {
        aspetto_ = {};
        Applica();
        MostraValori();
    });
    colonna->addLayout(CreaPulsantiFinali(*this, {normale}));
    MostraValori();
    RimettiPosto();
}

QWidget* FrmAspect::CreaModulo(const QString& stileFisso) {
    auto* quadro = new QWidget(this);
    quadro->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* modulo = new QFormLayout(quadro);
    modulo->setContentsMargins(0, 0, 0, 0);
    modulo->setHorizontalSpacing(20);
    modulo->setVerticalSpacing(10);
    for (const RigaAspetto& riga : kRighe) {
        AggiungiRiga(*modulo, riga);
        if (riga.campo != &Aspetto::stile || stileFisso.isEmpty())
            continue;
        auto* nota = CreaDidascalia(tr("This session was started with --style %1;\nthe choice "
                                       "counts from the next start on.")
                                        .arg(stileFisso),
                                    quadro);
        nota->setObjectName(QStringLiteral("LBFisso"));
        modulo->addRow(nota);
    }
    return quadro;
}

void FrmAspect::AggiungiRiga(QFormLayout& modulo, const RigaAspetto& riga) {
    if (riga.gruppo) {
        auto* titolo = CreaTitoletto(tr(riga.gruppo), modulo.parentWidget());
        titolo->setContentsMargins(0, modulo.rowCount() > 0 ? 14 : 0, 0, 2);
        modulo.addRow(titolo);
    }
    QLabel* valore = nullptr;
    QWidget* oggetto = nullptr;
    if (riga.genere == GenereRiga::Cursore) {
        valore = CreaDidascalia(QString(), modulo.parentWidget());
        valore->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00 letters")));
        oggetto = CreaCursore(riga, valore);
        auto* fila = new QHBoxLayout;
        fila->setSpacing(12);
        fila->addWidget(oggetto, 1);
        fila->addWidget(valore);
        auto* didascalia = new QLabel(tr(riga.didascalia), modulo.parentWidget());
        didascalia->setBuddy(oggetto);
        modulo.addRow(didascalia, fila);
    } else if (riga.genere == GenereRiga::Lista) {
        oggetto = CreaLista(riga);
        modulo.addRow(tr(riga.didascalia), oggetto);
    } else {
        auto* casella = new QCheckBox(tr(riga.didascalia), this);
        connect(casella, &QCheckBox::toggled, this,
                [this, campo = riga.campo](bool si) { Imposta(campo, si ? 1 : 0); });
        oggetto = casella;
        modulo.addRow(QString(), oggetto);
    }
    Nomina(oggetto, QLatin1String(riga.nome), tr(riga.didascalia), tr(riga.aiuto));
    controlli_.push_back({&riga, oggetto, valore});
}

QWidget* FrmAspect::CreaLista(const RigaAspetto& riga) {
    auto* lista = new QComboBox(this);
    lista->addItems(QString::fromLatin1(riga.testi).split(QLatin1Char('|')));
    connect(lista, &QComboBox::currentIndexChanged, this,
            [this, campo = riga.campo](int scelta) { Imposta(campo, scelta); });
    return lista;
}

QWidget* FrmAspect::CreaCursore(const RigaAspetto& riga, QLabel* valore) {
    const CampoAspetto& campo = CampoDi(riga.campo);
    auto* cursore = new QSlider(Qt::Horizontal, this);
    cursore->setRange(campo.minimo, campo.massimo);
    cursore->setSingleStep(riga.passo);
    cursore->setPageStep(4 * riga.passo);
    cursore->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    connect(cursore, &QSlider::valueChanged, this, [this, &riga, valore](int v) {
        valore->setText(TestoValore(riga, v));
        Imposta(riga.campo, v);
    });
    return cursore;
}

void FrmAspect::Imposta(int Aspetto::*campo, int valore) {
    aspetto_.*campo = valore;
    Applica();
}

void FrmAspect::Applica() {
    ScriviAspetto(scrivania_.env, aspetto_);
    anteprima_->update();
    Q_EMIT Cambiato();
}

void FrmAspect::MostraValori() {
    for (const auto& [riga, oggetto, etichetta] : controlli_) {
        const QSignalBlocker zitto(oggetto);
        const int valore = aspetto_.*riga->campo;
        if (auto* lista = qobject_cast<QComboBox*>(oggetto))
            lista->setCurrentIndex(valore);
        else if (auto* casella = qobject_cast<QCheckBox*>(oggetto))
            casella->setChecked(valore != 0);
        else
            static_cast<QSlider*>(oggetto)->setValue(valore);
        if (etichetta)
            etichetta->setText(TestoValore(*riga, valore));
    }
}

/// Where it stood, if that is still on a screen.
void FrmAspect::RimettiPosto() {
    const auto posto = LeggiPostoFinestra(scrivania_.env);
    if (!posto)
        return;
    const QRect dove(posto->x, posto->y, posto->larghezza, posto->altezza);
    for (const QScreen* schermo : QGuiApplication::screens())
        if (schermo->availableGeometry().contains(dove))
            setGeometry(dove);
}

void FrmAspect::accept() {
    const QRect dove = geometry();
    ScriviPostoFinestra(scrivania_.env, {dove.x(), dove.y(), dove.width(), dove.height()});
    ScriviAspetto(scrivania_.env, aspetto_);
    SalvaPanelEPN(scrivania_, kPannelloEPN);
    QDialog::accept();
}

void FrmAspect::reject() {
    CopiaAspetto(prima_, scrivania_.env);
    Q_EMIT Cambiato();
    QDialog::reject();
}

} // namespace orvane
