// Reports for the tests: one put together by the test itself, and a rich one.
#pragma once

#include <functional>

#include <QStringList>

#include "platform/printing/report.h"

/// Its events are functions and a log.
class TestReport : public Printing::Report {
public:
    std::function<void()> onStart;
    std::function<void()> onInitialize;
    std::function<void(bool &)> onFetch;
    std::function<void(Printing::Section &)> onFormat;
    std::function<void()> onEnd;
    QStringList *log = nullptr;
    QString name;

    /// Gives `count` rows; the field "n" counts them from 1.
    void countRows(int count);

protected:
    void ReportStart() override;
    void DataInitialize() override;
    void FetchData(bool &eof) override;
    void Format(Printing::Section &section) override;
    void ReportEnd() override;

private:
    void note(const QString &event);
};

/// A text control with the usual places set.
template <class ControlType>
ControlType &place(Printing::Section &section, const QString &name, const QRect &box,
                   const QString &text = {}) {
    auto &control = section.Controls.Add<ControlType>(name);
    control.Left = box.left();
    control.Top = box.top();
    control.Width = box.width();
    control.Height = box.height();
    control.Text = text;
    return control;
}

/// A weather station: header with aligned texts and a picture, a table of `rows` rows over pages with notes
/// below, a chart, page header and footer.
std::shared_ptr<TestReport> stationReport(int rows);
