// Reads a rich text file back: enough of the format to see what a word processor would show.
#pragma once

#include <optional>
#include <vector>

#include <QRegularExpression>
#include <QStringList>

struct RtfContent {
    /// Groups close as they opened and nothing stands outside; every byte is ASCII.
    bool isSound = false;
    QString title;
    /// The texts of all paragraphs outside tables.
    QStringList paragraphs;
    /// The cells of all rows.
    std::vector<QStringList> rows;
    /// The right cell edges of each row, in twips.
    std::vector<std::vector<int>> edges;
    int headingRows = 0;
    int pictures = 0;
    /// Of header and footer together, fields as their instruction in angle brackets.
    QString pageText;
    QStringList headings;
};

class RtfReader {
public:
    static RtfContent read(const QByteArray &rtf) {
        RtfReader reader(rtf);
        reader.run();
        return reader.m_content;
    }

private:
    struct Group {
        QString destination;
        bool isHeading = false;
    };

    explicit RtfReader(const QByteArray &rtf)
        : m_rtf(rtf) {}

    void run() {
        bool isAscii = true;
        while (m_at < m_rtf.size()) {
            const char sign = m_rtf[m_at++];
            isAscii = isAscii && sign > 0;
            if (sign == '{') {
                m_groups.push_back(m_groups.empty() ? Group() : m_groups.back());
            } else if (sign == '}') {
                if (m_groups.empty()) return;
                closeGroup();
            } else if (sign == '\\') {
                readControl();
            } else if (sign != '\n' && sign != '\r') {
                addText(QLatin1Char(sign));
            }
            if (m_groups.empty() && m_at < m_rtf.size() && m_rtf.mid(m_at).trimmed().size() > 0) return;
        }
        m_content.isSound = m_groups.empty() && isAscii;
    }

    void closeGroup() {
        const QString destination = m_groups.back().destination;
        m_groups.pop_back();
        if (destination == "fldinst") m_content.pageText += '<' + m_instruction.trimmed() + '>';
        if (destination == "fldinst") m_instruction.clear();
    }

    void readControl() {
        static const QRegularExpression word(QStringLiteral("\\A([a-z]+)(-?\\d+)? ?"));
        const QString rest = QString::fromLatin1(m_rtf.mid(m_at, 40));
        const auto match = word.match(rest);
        if (!match.hasMatch()) {
            const char sign = m_rtf[m_at++];
            if (sign != '*') addText(QLatin1Char(sign == '~' ? ' ' : sign));
            return;
        }
        m_at += match.capturedLength();
        apply(match.captured(1), match.captured(2).toInt());
    }

    void apply(const QString &word, int value) {
        static const QStringList destinations = {"fonttbl", "colortbl", "stylesheet", "title",   "author",
                                                 "pict",    "header",   "footer",     "fldinst", "fldrslt"};
        if (destinations.contains(word)) {
            m_groups.back().destination = word;
            if (word == "pict") ++m_content.pictures;
        } else if (word == "u") {
            addText(QChar(char16_t(value)));
            ++m_at; // the substitute
        } else if (word == "line" || word == "tab") {
            addText(QLatin1Char(word == "line" ? '\n' : '\t'));
        } else if (word == "outlinelevel" && m_groups.back().destination.isEmpty()) {
            m_groups.back().isHeading = true;
        } else if (word == "pard") {
            m_groups.back().isHeading = false;
        } else if (word == "trowd") {
            m_content.edges.emplace_back();
        } else if (word == "trhdr") {
            ++m_content.headingRows;
        } else if (word == "cellx") {
            m_content.edges.back().push_back(value);
        } else if (word == "cell") {
            m_cells += m_text.trimmed();
            m_text.clear();
        } else if (word == "row") {
            m_content.rows.push_back(m_cells);
            m_cells.clear();
        } else if (word == "par" && m_groups.back().destination.isEmpty()) {
            if (m_groups.back().isHeading) m_content.headings += m_text.trimmed();
            if (!m_text.trimmed().isEmpty()) m_content.paragraphs += m_text.trimmed();
            m_text.clear();
        }
    }

    void addText(QChar sign) {
        const QString &destination = m_groups.back().destination;
        if (destination.isEmpty())
            m_text += sign;
        else if (destination == "title")
            m_content.title += sign;
        else if (destination == "fldinst")
            m_instruction += sign;
        else if (destination == "header" || destination == "footer")
            m_content.pageText += sign;
    }

    const QByteArray m_rtf;
    qsizetype m_at = 0;
    std::vector<Group> m_groups;
    RtfContent m_content;
    QString m_text;
    QString m_instruction;
    QStringList m_cells;
};
