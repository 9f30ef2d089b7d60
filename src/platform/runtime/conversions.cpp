#include "platform/runtime/conversions.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <optional>

#include <QDateTime>

#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"

namespace {

constexpr int SingleDigits = 7;
constexpr int DoubleDigits = 15;

bool isBlank(QChar sign) {
    return sign == QLatin1Char(' ') || sign == QChar(0x00A0) || sign == QChar(0x202F);
}

bool isApostrophe(QChar sign) {
    return sign == QLatin1Char('\'') || sign == QChar(0x2019);
}

// Locales group with a no-break blank or a typographic apostrophe; people and files hold the plain ones.
bool isGroupSign(QChar sign, QChar groupSign) {
    if (groupSign.isNull()) return false;
    return sign == groupSign || (isBlank(sign) && isBlank(groupSign)) ||
           (isApostrophe(sign) && isApostrophe(groupSign));
}

bool isDigit(QChar sign) {
    return sign >= QLatin1Char('0') && sign <= QLatin1Char('9');
}

// The text in the notation of C, or nothing if it is no number.
std::optional<QString> plainNumber(const QString &written) {
    const RegionalSettings &settings = RegionalSettings::current();
    const QString text = written.trimmed();
    QString plain;
    qsizetype i = 0;
    const auto takeSign = [&] {
        if (i < text.size() && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+')))
            plain += text[i++];
    };
    bool anyDigit = false;
    bool anyDecimalSign = false;
    takeSign();
    for (; i < text.size(); ++i) {
        if (isDigit(text[i])) {
            plain += text[i];
            anyDigit = true;
        } else if (text[i] == settings.decimalSign && !anyDecimalSign) {
            plain += QLatin1Char('.');
            anyDecimalSign = true;
        } else if (!isGroupSign(text[i], settings.groupSign)) {
            break;
        }
    }
    if (!anyDigit) return std::nullopt;
    if (i < text.size() && QStringLiteral("EeDd").contains(text[i])) {
        plain += QLatin1Char('e');
        ++i;
        takeSign();
        const qsizetype exponent = i;
        for (; i < text.size() && isDigit(text[i]); ++i)
            plain += text[i];
        if (i == exponent) return std::nullopt;
    }
    if (i < text.size()) return std::nullopt;
    return plain;
}

double numberOfText(const QString &text) {
    const std::optional<QString> plain = plainNumber(text);
    if (!plain) throw RuntimeError(13);
    const double number = plain->toDouble(); // zero where it is too small
    if (std::isinf(number)) throw RuntimeError(6);
    return number;
}

// Days since the engine's day zero, as a date converts to a number.
double dateSerial(const QDateTime &moment) {
    const qint64 days = QDate(1899, 12, 30).daysTo(moment.date());
    return static_cast<double>(days) + moment.time().msecsSinceStartOfDay() / 86'400'000.0;
}

int significantDigits(const QVariant &value) {
    return value.typeId() == QMetaType::Float ? SingleDigits : DoubleDigits;
}

double rounded(const QVariant &value, double lowest, double highest) {
    const double number = std::nearbyint(CDbl(value));
    if (!(number >= lowest && number <= highest)) throw RuntimeError(6);
    return number;
}

// The digits of a number and the place of its decimal sign among them: value = 0.digits * 10^point.
struct DecimalText {
    QString digits;
    qsizetype point = 0;
};

DecimalText decimalText(double magnitude, int significant) {
    if (magnitude == 0) return {};
    const QString text = QString::number(magnitude, 'e', significant - 1);
    const qsizetype e = text.indexOf(QLatin1Char('e'));
    DecimalText result;
    result.digits = text.left(e).remove(QLatin1Char('.'));
    result.point = text.mid(e + 1).toInt() + 1;
    return result;
}

// Keeps `decimals` digits behind the decimal sign; the first digit dropped decides, half away from zero.
void roundTo(DecimalText &number, qsizetype decimals) {
    const qsizetype keep = number.point + decimals;
    if (keep >= number.digits.size()) return;
    const bool up = keep >= 0 && number.digits[keep] >= QLatin1Char('5');
    number.digits.truncate(std::max<qsizetype>(keep, 0));
    if (!up) return;
    qsizetype i = keep - 1;
    while (i >= 0 && number.digits[i] == QLatin1Char('9'))
        number.digits[i--] = QLatin1Char('0');
    if (i >= 0) {
        number.digits[i] = QChar(number.digits[i].unicode() + 1);
    } else {
        number.digits.prepend(QLatin1Char('1'));
        ++number.point;
    }
}

QString integerPart(const DecimalText &number, qsizetype least) {
    QString text = number.digits.left(std::max<qsizetype>(number.point, 0));
    if (number.point > number.digits.size())
        text += QString(number.point - number.digits.size(), QLatin1Char('0'));
    return text.rightJustified(least, QLatin1Char('0'));
}

QString fraction(const DecimalText &number, qsizetype least, qsizetype most) {
    QString text = number.point < 0 ? QString(-number.point, QLatin1Char('0')) + number.digits
                                    : number.digits.mid(number.point);
    text = text.leftJustified(most, QLatin1Char('0'), true);
    while (text.size() > least && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    return text;
}

} // namespace

QString CStr(const QVariant &value) {
    if (IsNull(value)) throw RuntimeError(94);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Float:
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (number == 0) return QStringLiteral("0"); // also for a negative zero
        QString text = QString::number(number, 'G', significantDigits(value));
        return text.replace(QLatin1Char('.'), RegionalSettings::current().decimalSign);
    }
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return RegionalSettings::current().dateText(value.toDateTime());
    default:
        return value.toString();
    }
}

double CDbl(const QVariant &value) {
    if (IsNull(value)) throw RuntimeError(94);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? -1 : 0;
    case QMetaType::QString:
        return numberOfText(value.toString());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return dateSerial(value.toDateTime());
    default: {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (!isNumber) throw RuntimeError(13);
        return number;
    }
    }
}

float CSng(const QVariant &value) {
    const double number = CDbl(value);
    // Beyond the largest single by half a unit in its last place, where rounding to a single leaves its
    // range.
    constexpr double limit = static_cast<double>(FLT_MAX) * (1.0 + FLT_EPSILON / 4.0);
    if (std::isnan(number) || std::abs(number) >= limit) throw RuntimeError(6);
    return static_cast<float>(number);
}

qint16 CInt(const QVariant &value) {
    return static_cast<qint16>(
        rounded(value, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
}

qint32 CLng(const QVariant &value) {
    return static_cast<qint32>(
        rounded(value, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
}

bool CBool(const QVariant &value) {
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString();
        if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
        if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) return false;
    }
    return CDbl(value) != 0;
}

QString Format(const QVariant &value, const QString &pattern) {
    if (IsNull(value)) return {};
    if (value.typeId() == QMetaType::QString && !plainNumber(value.toString())) return value.toString();

    const double number = CDbl(value);
    const qsizetype sign = pattern.indexOf(QLatin1Char('.'));
    const QString whole = sign < 0 ? pattern : pattern.left(sign);
    const QString behind = sign < 0 ? QString() : pattern.mid(sign + 1);

    DecimalText decimal = decimalText(std::abs(number), significantDigits(value));
    roundTo(decimal, behind.size());
    QString text = number < 0 ? QStringLiteral("-") : QString();
    text += integerPart(decimal, whole.count(QLatin1Char('0')));
    if (sign >= 0) text += RegionalSettings::current().decimalSign;
    return text + fraction(decimal, behind.count(QLatin1Char('0')), behind.size());
}
