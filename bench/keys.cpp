#include "bench/keys.h"

#include <QLineEdit>
#include <QTest>

#include "bench/program.h"

namespace Bench {

void measureKeys(benchmark::State &state, const Goal &goal, QLineEdit &box) {
    box.setFocus();
    const QString begin = box.text();
    int number = 0;
    measure(
        state, goal,
        [&] {
            QTest::keyClick(&box, static_cast<char>('1' + number % 9));
            paint();
        },
        [&] {
            // what stands before the digit is another number each time
            box.setText(begin + QString::number(number / 9));
            ++number;
            paint();
        });
}

} // namespace Bench
