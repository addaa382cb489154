#include "FieldText.h"

#include <QLineEdit>

#include <cstdlib>
#include <limits>

std::int32_t fieldNumber(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    const long long value = std::strtoll(bytes.constData(), nullptr, 10);
    // Out-of-range numbers saturate, as the C runtime's atoi does on Windows.
    if (value > std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    if (value < std::numeric_limits<std::int32_t>::min())
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

std::int32_t fieldNumber(const QLineEdit* edit)
{
    return fieldNumber(edit->text());
}

void setFieldNumber(QLineEdit* edit, std::int32_t value)
{
    edit->setText(QString::number(value));
}
