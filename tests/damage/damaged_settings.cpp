// damaged_settings [COUNT] [SEED]: starts and ends the program COUNT times over a settings file and a path
// file of which one or both have come to harm, and tells what came of it. A run ends by itself, with a
// settings file that the next one can read; the one error that may end it is that of a back colour that is no
// number.
#include <cstdio>
#include <map>
#include <random>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/forms/msg_box.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/text_file.h"
#include "shell/settings_file.h"
#include "tests/support/test_run.h"

namespace {

constexpr int TypeMismatch = 13;
constexpr int Overflow = 6;
constexpr int DatabaseMissing = -1; // nothing but a question came of it
constexpr qint64 LongestRun = 10'000;
constexpr long MostMemory = 1 << 20; // kilobytes

/// Text files as they are after a crash, a failing medium, or a person with an editor.
class TextDamager {
public:
    explicit TextDamager(unsigned seed)
        : m_random(seed) {}

    qsizetype below(qsizetype limit) { return static_cast<qsizetype>(m_random() % std::size_t(limit)); }

    QByteArray damaged(const QByteArray &good) {
        QByteArray bad = good;
        switch (below(6)) {
        case 0:
            for (qsizetype changes = 1 + below(8); changes > 0; --changes)
                bad[below(bad.size())] = static_cast<char>(m_random());
            break;
        case 1:
            bad.truncate(below(bad.size()));
            break;
        case 2: {
            const qsizetype from = below(bad.size());
            const qsizetype size = below(bad.size());
            bad.replace(from, size, QByteArray(size, below(2) == 0 ? '\0' : static_cast<char>(m_random())));
            break;
        }
        case 3:
            bad.insert(below(bad.size()), anyBytes(below(3) == 0 ? 100'000 : 40));
            break;
        default:
            changeLines(bad);
        }
        return bad;
    }

private:
    QByteArray anyBytes(qsizetype most) {
        QByteArray bytes(below(most), Qt::Uninitialized);
        for (char &byte : bytes)
            byte = static_cast<char>(m_random());
        return bytes;
    }

    /// What a person, or another program, may put in a line's place.
    void changeLines(QByteArray &text) {
        static const QByteArrayList strange = {"",
                                               "-1",
                                               "1E400",
                                               "-1E39",
                                               "32768",
                                               "99999999999999999999",
                                               "NaN",
                                               "inf",
                                               "0x10",
                                               "1,5",
                                               "1.5",
                                               "True",
                                               "wahr",
                                               "'",
                                               "[a-",
                                               "*",
                                               "%1",
                                               "\xff\xfe",
                                               "Tool_TOP",
                                               "\xc3\xa9",
                                               "-2147483649",
                                               "Tile_Horizontal",
                                               "Colours_OFF",
                                               QByteArray(40'000, 'x')};
        QByteArrayList lines = text.split('\n');
        for (qsizetype changes = 1 + below(5); changes > 0; --changes) {
            const qsizetype line = below(lines.size());
            switch (below(4)) {
            case 0:
                lines.swapItemsAt(line, below(lines.size()));
                break;
            case 1:
                lines.insert(line, strange[below(strange.size())] + '\r');
                break;
            default:
                lines[line] = strange[below(strange.size())] + '\r';
            }
        }
        text = lines.join('\n');
    }

    std::mt19937 m_random;
};

bool writeBytes(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

class Starts {
public:
    explicit Starts(unsigned seed)
        : m_damager(seed)
        , m_folders{m_folder.filePath("program"), m_folder.filePath("user")} {
        QDir().mkpath(m_folders.program);
        QDir().mkpath(m_folders.user + "/Harmotek/Velmar_PED");
        QFile::copy(SOURCE_FOLDER "/sample/Velmar_PED.mdb", m_folders.program + "/Velmar_PED.mdb");
        m_settings = goodSettings();
        m_path = (m_folders.program + "/Velmar_PED.mdb\r\n").toUtf8();
    }

    void next() {
        const qsizetype which = m_damager.below(3);
        const QByteArray settings = which != 1 ? m_damager.damaged(m_settings) : m_settings;
        if (!writeBytes(user("Settings.vlp"), settings) ||
            !writeBytes(user("PathSet.vlp"), which != 0 ? m_damager.damaged(m_path) : m_path))
            qFatal("cannot write the damaged files");
        const bool colourIsBad = hasBadColour();
        const qsizetype answer = m_damager.below(3);
        const Ending ending =
            ProgramRun::whole(m_folders, [&](TestRun &testRun) { useBriefly(testRun, answer); });
        judge(ending, colourIsBad);
        ++m_count;
    }

    bool report() const {
        for (const auto &[error, times] : m_outcomes) {
            const QString outcome = error == 0 ? QStringLiteral("opened and left")
                                    : error == DatabaseMissing
                                        ? QStringLiteral("no database, left")
                                        : QStringLiteral("run-time error %1").arg(error);
            std::printf("%-20s %6d\n", qPrintable(outcome), times);
        }
        std::printf("longest run: %lld ms; most memory: %ld MB; faults: %d\n", m_longest, m_memory / 1024,
                    m_faults);
        return m_faults == 0;
    }

private:
    static QByteArray goodSettings() {
        Settings settings;
        settings.setBackColor(16697253);
        settings.columnSize = {1500, 1800, 1200, 2400, 1050, 1350};
        settings.savedSearch[0] = "EN 10028";
        settings.savedSearch[7] = "0";
        return (SettingsFile::toLines(settings).join("\r\n") + "\r\n").toUtf8();
    }

    QString user(const QString &file) const { return m_folders.userFile(file); }

    bool hasBadColour() const {
        try {
            SettingsFile::read(user("Settings.vlp")).backColor();
        } catch (const RuntimeError &) {
            return true;
        }
        return false;
    }

    /// Answers to a missing database: No; another one; one that is none.
    void useBriefly(TestRun &testRun, qsizetype answer) const {
        int asked = 0;
        testRun.answerBox = [&](const ModalSeam::Request &request) {
            if ((request.style & 0xf) != vbYesNo) return int(vbOK);
            return answer > 0 && ++asked < 4 ? int(vbYes) : int(vbNo);
        };
        testRun.chooseFile = [&](const ModalSeam::Request &) {
            return answer == 1 ? m_folders.program + "/Velmar_PED.mdb" : user("Settings.vlp");
        };
        testRun.start();
        testRun.leave();
    }

    void judge(const Ending &ending, bool colourIsBad) {
        const int error = ending.error();
        const bool allowed = colourIsBad && (error == TypeMismatch || error == Overflow);
        const bool ended = ending.status == (error != 0 ? 1 : 0) && (error == 0 || allowed);
        QString problem;
        if (!ended) problem = "ended with status " + QString::number(ending.status);
        if (ending.milliseconds > LongestRun) problem += "; took too long";
        if (ending.kilobytes > MostMemory) problem += "; took too much memory";
        if (TextFile::readLines(user("Settings.vlp")).size() != 27 || hasBadColour())
            problem += "; left settings that the next start cannot read";
        const bool missing = ending.log.filter("box: Database Missing").size() > 0 && error == 0;
        ++m_outcomes[missing && ending.log.filter("opened").isEmpty() ? DatabaseMissing : error];
        m_longest = std::max(m_longest, ending.milliseconds);
        m_memory = std::max(m_memory, ending.kilobytes);
        if (problem.isEmpty()) return;
        ++m_faults;
        std::printf("start %d: %s\n%s\n", m_count, qPrintable(problem), qPrintable(ending.log.join('\n')));
    }

    TextDamager m_damager;
    QTemporaryDir m_folder;
    TestRun::Folders m_folders;
    QByteArray m_settings;
    QByteArray m_path;
    int m_count = 0;
    std::map<int, int> m_outcomes;
    qint64 m_longest = 0;
    long m_memory = 0;
    int m_faults = 0;
};

} // namespace

int main(int argc, char **argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 2000;
    Starts starts(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 20260131);
    for (int i = 0; i < count; ++i)
        starts.next();
    return starts.report() ? 0 : 1;
}
