#include "ui/EditorColore.h"

#include <QGridLayout>
#include <QPainter>
#include <QSignalBlocker>

#include "platform/qt/SuperficieQt.h"
#include "records/EnvRecord.h"
#include "records/NomiColori.h"
#include "ui/Moduli.h"
#include "ui/Tema.h"
#include "ui/Testi.h"

namespace orvane {
namespace {

struct ParteColore {
    const char* nome;
    const char* didascalia;
};
constexpr std::array<ParteColore, 3> kParti = {
    {{"SLDRed", "Red"}, {"SLDGreen", "Green"}, {"SLDBlue", "Blue"}}};

class Campione : public QWidget {
public:
    explicit Campione(QWidget* padre) : QWidget(padre) { setFixedHeight(26); }
    void Mostra(int32_t prima, int32_t ora) {
        prima_ = prima;
        ora_ = ora;
        update();
    }
    int32_t Prima() const { return prima_; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        DisegnaCampione(p, QRectF(rect()), prima_, ora_);
    }

private:
    int32_t prima_ = 0;
    int32_t ora_ = 0;
};

int Parte(int32_t colore, size_t i) {
    return colore >> (8 * i) & 0xff;
}

} // namespace

void DisegnaCampione(QPainter& p, const QRectF& dove, int32_t prima, int32_t ora) {
    const QRectF r = dove.adjusted(0.5, 0.5, -0.5, -0.5);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient meta(r.topLeft(), r.topRight());
    meta.setColorAt(0, ColoreQt(prima));
    meta.setColorAt(0.4999, ColoreQt(prima));
    meta.setColorAt(0.5, ColoreQt(ora));
    p.setBrush(prima == ora ? QBrush(ColoreQt(ora)) : QBrush(meta));
    p.setPen(QPen(QColor(128, 128, 128, 160), 1));
    p.drawRoundedRect(r, 3, 3);
    p.restore();
}

EditorColore::EditorColore(QWidget* padre)
    : QWidget(padre), testo_(new QLineEdit(this)), campione_(new Campione(this)) {
    auto* griglia = new QGridLayout(this);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setHorizontalSpacing(12);
    griglia->setVerticalSpacing(10);
    for (size_t i = 0; i < kParti.size(); ++i) {
        const QString didascalia = QLatin1String(kParti[i].didascalia);
        cursori_[i] = Nomina(new QSlider(Qt::Horizontal, this), QLatin1String(kParti[i].nome),
                             didascalia, tr("Arrow keys change by one, Page keys by 16"));
        cursori_[i]->setRange(0, 255);
        cursori_[i]->setPageStep(16);
        valori_[i] = CreaDidascalia(QString(), this);
        valori_[i]->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000")));
        valori_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* nome = new QLabel(didascalia, this);
        nome->setBuddy(cursori_[i]);
        const int riga = static_cast<int>(i);
        griglia->addWidget(nome, riga, 0);
        griglia->addWidget(cursori_[i], riga, 1);
        griglia->addWidget(valori_[i], riga, 2);
        connect(cursori_[i], &QSlider::valueChanged, this, [this] {
            Scrivi(Rgb(cursori_[0]->value(), cursori_[1]->value(), cursori_[2]->value()));
        });
    }
    Nomina(testo_, QStringLiteral("TBColor"), tr("Colour in hexadecimal"), tr("#RRGGBB"));
    testo_->setMaxLength(7);
    auto* didascalia = new QLabel(tr("Code"), this);
    didascalia->setBuddy(testo_);
    campione_->setToolTip(tr("Before, and now"));
    griglia->addWidget(didascalia, 3, 0);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(10);
    fila->addWidget(testo_, 1);
    fila->addWidget(campione_, 1);
    griglia->addLayout(fila, 3, 1, 1, 2);
    griglia->setColumnStretch(1, 1);
    connect(testo_, &QLineEdit::textEdited, this, &EditorColore::LeggiTesto);
    connect(testo_, &QLineEdit::editingFinished, this,
            [this] { testo_->setText(Q(TestoColore(colore_))); });
}

void EditorColore::Mostra(int32_t colore, int32_t prima) {
    colore_ = colore;
    for (size_t i = 0; i < kParti.size(); ++i) {
        const QSignalBlocker zitto(cursori_[i]);
        cursori_[i]->setValue(Parte(colore, i));
        valori_[i]->setText(QString::number(Parte(colore, i)));
    }
    if (LeggiColore(S(testo_->text())) != colore)
        testo_->setText(Q(TestoColore(colore)));
    static_cast<Campione*>(campione_)->Mostra(prima, colore);
}

void EditorColore::Scrivi(int32_t colore) {
    Mostra(colore, static_cast<Campione*>(campione_)->Prima());
    Q_EMIT Scelto(colore);
}

/// While it is typed, an unfinished code changes nothing.
void EditorColore::LeggiTesto() {
    if (const auto colore = LeggiColore(S(testo_->text())))
        Scrivi(*colore);
}

} // namespace orvane
