// Reads material cards as their programs do, from what the programs' manuals say.
#pragma once

#include <map>

#include <QString>
#include <QStringList>
#include <QVector>

struct ReadCard {
    QString name;
    /// By keyword or label: the numbers of each line or pair, the temperature last.
    std::map<QString, QVector<QVector<double>>> blocks;
    QString comments;
    QStringList faults;
};

inline QVector<double> cardNumbers(const QStringList &words, ReadCard &card) {
    QVector<double> numbers;
    for (const QString &word : words) {
        bool isNumber = false;
        numbers << word.trimmed().toDouble(&isNumber);
        if (!isNumber || word.trimmed().size() > 20) card.faults << "no number: " + word;
    }
    return numbers;
}

inline void checkLine(const QString &line, qsizetype longest, ReadCard &card) {
    if (line.size() > longest) card.faults << "too long: " + line;
    for (const QChar sign : line)
        if (sign < QLatin1Char(' ') || sign > QLatin1Char('~')) card.faults << "not ASCII: " + line;
}

inline ReadCard readCalculix(const QString &text) {
    ReadCard card;
    QString keyword;
    for (const QString &line : text.chopped(1).split('\n')) {
        checkLine(line, 132, card);
        if (line.startsWith("**")) {
            card.comments += line.mid(2).trimmed() + ' ';
        } else if (line.startsWith('*')) {
            keyword = line.section(',', 0, 0);
            if (keyword == "*MATERIAL") card.name = line.section("NAME=", 1);
            if (keyword == "*EXPANSION" && !line.endsWith(", ZERO=20")) card.faults << line;
            if (keyword != "*MATERIAL" && card.name.isEmpty()) card.faults << "no material: " + line;
        } else {
            card.blocks[keyword] << cardNumbers(line.split(','), card);
        }
    }
    return card;
}

/// One after the other: a place beyond the sixth is the next command's, and a zero behind the first value of
/// a command leaves the place as it was.
inline void fillPlaces(const QStringList &words, std::map<int, double> &places, ReadCard &card) {
    if (words.size() > 7) card.faults << "more than six values";
    const int first = words[0].toInt();
    const QVector<double> values = cardNumbers(words.mid(1), card);
    for (int i = 0; i < values.size(); ++i)
        if (i == 0 || values[i] != 0) places[first + i] = values[i];
}

inline ReadCard readMapdl(const QString &text) {
    ReadCard card;
    std::map<int, double> temperatures;
    std::map<QString, std::map<int, double>> data;
    double curve = 0;
    qsizetype curves = 0;
    for (const QString &line : text.chopped(1).split('\n')) {
        checkLine(line, 128, card);
        QStringList words = line.split(',');
        const QString command = words.takeFirst();
        if (line.startsWith('!')) {
            card.comments += line.mid(1).trimmed() + ' ';
        } else if (command == "MPTEMP") {
            if (words.isEmpty())
                temperatures.clear();
            else
                fillPlaces(words, temperatures, card);
        } else if (command == "MPDATA") {
            std::map<int, double> &places = data[words[0]];
            if (words[1] != "1") card.faults << line;
            fillPlaces(words.mid(2), places, card);
            card.blocks[words[0]].clear();
            for (const auto &[place, value] : places)
                card.blocks[words[0]] << QVector<double>{value, temperatures[place]};
        } else if (command == "MP") {
            if (words[1] != "1" || !temperatures.empty()) card.faults << line;
            card.blocks[words[0]] << cardNumbers(words.mid(2), card);
        } else if (command == "TB") {
            if (!line.startsWith("TB,PLASTIC,1,") || !line.endsWith(",2,MISO")) card.faults << line;
            curves = words[2].toInt();
        } else if (command == "TBTEMP") {
            curve = words[0].toDouble();
        } else if (command == "TBPT") {
            card.blocks["TB"] << QVector<double>{words[2].toDouble(), words[1].toDouble(), curve};
        } else {
            card.faults << line;
        }
    }
    if (curves * 2 != card.blocks["TB"].size()) card.faults << "the curves are not as many as TB says";
    return card;
}
