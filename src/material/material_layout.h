// Where the overlapping parts of a material window stand, in twips.
#pragma once

namespace MaterialLayout {

constexpr int WindowWidth = 11280;
constexpr int WindowHeight = 5040;

/// The background panels.
constexpr int PanelLeft = 120;
constexpr int PanelTop = 120;
constexpr int PanelWidth = 10935;
constexpr int PanelHeight = 4455;

/// What stands on a panel.
constexpr int PageLeft = 240;
constexpr int PageTop = 240;
constexpr int PageWidth = 10695;
constexpr int PageHeight = 4215;
constexpr int FrameGap = 120;
/// Of a box with one line of text.
constexpr int BoxHeight = 345;

/// The panel right of a bound table, and what is left of it.
constexpr int OptionsLeft = 7320;
constexpr int OptionsWidth = 3615;
constexpr int BesideOptionsWidth = 6960;

/// The split between table and notes.
constexpr int TableHeight = 3735;
constexpr int TableHeightWithNotes = 2175;
constexpr int ClosedNotesTop = 4080;
constexpr int ClosedNotesHeight = 375;
constexpr int OpenNotesTop = 2520;
constexpr int OpenNotesHeight = 1935;

constexpr int NoDataMargin = 200;

/// The notes panel as a page.
constexpr int InfoMargin = 100;
constexpr int InfoTextMargin = 800;
constexpr int NotesLabelLeft = 840;
constexpr int InfoLabelLeft = 240;

constexpr int UnboundColumnWidth = 780;
constexpr int BoundColumnWidth = 1200;

} // namespace MaterialLayout
