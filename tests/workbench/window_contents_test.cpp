// What stands in the windows of the tools, as tests/program/contents tells it.
#include "tests/program/window_contents.h"
#include "tests/workbench/workbench_fixture.h"
#include "workbench/frmCard.h"
#include "workbench/frmCompare.h"
#include "workbench/frmFindValue.h"
#include "workbench/frmValueSheet.h"

using WindowContentsText::expectWindow;

namespace {

class ToolContents : public WorkbenchFixture {};

} // namespace

TEST_F(ToolContents, OfEachWindow) {
    select({2, 11});
    expectWindow(open<frmCompare>(ToolsEntry::CompareGrades), "compare");
    expectWindow(open<frmValueSheet>(ToolsEntry::ValuesOverTemperature), "values over temperature");
    expectWindow(open<frmFindValue>(ToolsEntry::FindByValue), "find by value");
    expectWindow(open<frmCard>(ToolsEntry::MaterialCard), "material card");
}
