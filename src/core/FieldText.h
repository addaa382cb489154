#pragma once

#include <QString>

#include <cstdint>

class QLineEdit;

// Edit fields hold plain decimal numbers: read like atoi (leading blanks, a sign, then digits;
// anything else ends the number, no number reads 0), written with "%d".
std::int32_t fieldNumber(const QString& text);
std::int32_t fieldNumber(const QLineEdit* edit);
void setFieldNumber(QLineEdit* edit, std::int32_t value);
