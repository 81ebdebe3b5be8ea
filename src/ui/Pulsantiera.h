// The row of buttons at the foot of a window that is confirmed or cancelled.
#pragma once

#include <initializer_list>

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace orvane {

/// `sinistra`, free space, `CMBCancel` and `CMBOK`, which are wired to reject and accept.
QHBoxLayout* CreaPulsantiFinali(QDialog& finestra, std::initializer_list<QPushButton*> sinistra,
                                const QString& conferma = QStringLiteral("OK"));

} // namespace orvane
