// The design values of one material window: a table of what its tables hold at one temperature.
#pragma once

#include <functional>

#include <QObject>

class DesignValues;
class Form;
class Material;
class TemperatureBox;
struct MaterialControls;

class DesignPage : public QObject {
    Q_OBJECT
public:
    DesignPage(Form &window, MaterialControls &controls, DesignValues &values);

    /// Has `load` load every table that was not looked at yet, and shows the tables' captions without a
    /// value.
    void BuildDesignTable(Material &material, const std::function<void(const QString &key)> &load);

    /// There is a temperature in the box, or else what shows belongs to none that could be told.
    bool hasTemperature() const;

    /// The table was built, which is done once in the life of the window.
    bool bDesignBuilt = false;

private:
    void connectBox();
    void textChanged();
    void spreadTemperature();
    void RecalcDesignValues();
    void CalcDesignValues();
    void computeTables();
    void addGridColumns(int count);

    Form &m_window;
    MaterialControls &m_controls;
    DesignValues &m_values;
    TemperatureBox *m_box;
};
