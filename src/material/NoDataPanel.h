// The message in the place of a table without data.
#pragma once

#include <QString>

class GraphSwitch;
class Material;
struct MaterialControls;

class NoDataPanel {
public:
    NoDataPanel(MaterialControls &controls, GraphSwitch &graphs);

    void ShowNoData(const Material &material, const QString &key);

private:
    MaterialControls &m_controls;
    GraphSwitch &m_graphs;
};
