#include "host/gui/menus/DataFilter.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(DataFilter, offersAllFormatsTogetherThenEachThenAnyFile) {
    const std::vector<host::DataFormat> formats{{{".e", ".exo"}, "Exodus II file"},
                                                {{".foam"}, "OpenFOAM case"}};
    EXPECT_EQ(gui::dataFilter(formats).toStdString(),
              "Simulation results (*.e *.exo *.foam);;Exodus II file (*.e *.exo);;"
              "OpenFOAM case (*.foam);;All files (*)");
}

} // namespace corvane::test
