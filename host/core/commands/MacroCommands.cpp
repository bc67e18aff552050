// The table of macro commands.
#include "host/core/commands/MacroCommands.h"

#include "host/core/base/Limits.h"
#include "host/core/base/Text.h"
#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"

namespace corvane::host {

const std::vector<MacroCommand>& macroCommands() {
    static const std::vector<MacroCommand> all{
        {"READDATA",
         {"\"FILE\" [\"FILE\" ...]"},
         "Reads data into the active frame and chooses plots and view for them. Several files make "
         "one data set.",
         "$!READDATA \"wake.pvd\"",
         readData,
         Recorded::WithFileNames},
        {"STYLE",
         {"PATH = VALUE"},
         "Sets one value of the active frame or of the program.",
         "$!STYLE Slice/1/Show = true",
         setStyle},
        {"PLOTTYPE",
         {"= CARTESIAN3D", "= CARTESIAN2D"},
         "Sets what the active frame shows.",
         "$!PLOTTYPE = CARTESIAN3D",
         setPlotType},
        {"VIEW",
         {"FIT", "AXIS = +X | -X | +Y | -Y | +Z | -Z", "SET NAME = VALUE [NAME = VALUE ...]"},
         "FIT makes the data fill the active frame. AXIS looks at them from the positive or "
         "negative end of an axis, and fits. SET gives values to Psi, Theta, Alpha (degrees), X, "
         "Y, Z (the viewer), OriginX, OriginY, OriginZ (the centre of rotations), Width (without "
         "perspective), FieldOfView (degrees) and Perspective (true or false): all of them or "
         "none.",
         "$!VIEW SET Psi = 60 Theta = 240 Alpha = 0",
         changeView},
        {"SOLUTIONTIME",
         {"= TIME"},
         "Shows the data at a solution time.",
         "$!SOLUTIONTIME = 0.5",
         setSolutionTime},
        {"FRAME",
         {"CREATE [X = N] [Y = N] [Width = N] [Height = N]",
          "PLACE [X = N] [Y = N] [Width = N] [Height = N]", "ACTIVATE = NUMBER", "DELETE", "POP",
          "PUSH"},
         "CREATE makes a frame on top of the others and activates it; frames are numbered from 1 "
         "as they are made, and a number is never used again. PLACE moves the active frame. "
         "Lengths are inches on the paper, from its left upper corner. POP brings the active "
         "frame to the top of the stack, PUSH moves it to the bottom. DELETE removes the active "
         "frame.",
         "$!FRAME CREATE X = 4 Y = 0 Width = 4 Height = 4.5",
         changeFrames},
        {"WORKAREA",
         {"Width = N Height = N [PixelsPerInch = N]"},
         "Makes the part of the paper that pictures show so many pixels wide and high, from " +
             rangeText(limits::pictureSide) +
             ". The paper is 8 inches wide in it unless PixelsPerInch is given. One frame that "
             "fills it goes on filling it. A size from the command line (--size) stays; in a "
             "window, "
             "the size holds while the macro plays.",
         "$!WORKAREA Width = 1920 Height = 1080",
         sizeWorkArea,
         Recorded::ByOthers},
        {"REDRAW", {""}, "Draws all frames.", "$!REDRAW", redraw},
        {"EXPORTSETUP",
         {"NAME = VALUE"},
         "Sets one value of the export set-up.",
         "$!EXPORTSETUP ImageWidth = 1280",
         setUpExport,
         Recorded::WithMovieName},
        {"PICTURE",
         {"\"FILE.png\" [Region = CURRENTFRAME | ALLFRAMES | WORKAREA] [Width = N] "
          "[Supersample = N]"},
         "Writes a picture, whose name must end in .png: of the work area, as wide as it is, "
         "unless "
         "other values are given. "
         "Width is " +
             rangeText(limits::pictureSide) + " pixels; Supersample draws " +
             rangeText(limits::supersampling) + " times larger and filters down.",
         "$!PICTURE \"wake.png\" Width = 1920 Supersample = 2",
         exportPicture,
         Recorded::WithFileName},
        {"EXTCOMMAND",
         {"\"ADD-ON\" \"COMMAND\""},
         "Runs a command of an add-on.",
         "$!EXTCOMMAND \"Key Frame Animation\" \"Animate AnimationDestination=ToFile\"",
         runAddOnCommand,
         Recorded::ByOthers},
        {"INCLUDE",
         {"\"FILE\""},
         "Plays another macro. File names in it are relative to its own folder.",
         "$!INCLUDE \"colors.mcr\"",
         includeMacro,
         Recorded::ByOthers},
        {"SET",
         {"NAME = VALUE"},
         "Gives a variable a value, unless it has one from the command line (--set NAME=VALUE). "
         "${NAME} in the words of later lines stands for it, $${ for the characters ${. "
         "${MACRO_FOLDER} is the folder of the macro that plays.",
         "$!SET CASE = \"wake\"",
         setVariable,
         Recorded::ByOthers}};
    return all;
}

const MacroCommand* findMacroCommand(const std::string& name) {
    for (const MacroCommand& command : macroCommands()) {
        if (equalIgnoringCase(command.name, name)) {
            return &command;
        }
    }
    return nullptr;
}

namespace {

/// A word of the call in a form that does not depend on any folder.
std::string recordedWord(const MacroCommand& command, const MacroCall& call, std::size_t index) {
    const std::string& word = call.words[index];
    switch (command.recorded) {
    case Recorded::WithFileNames:
        return absoluteName(call.path(word));
    case Recorded::WithFileName:
        return index == 0 ? absoluteName(call.path(word)) : word;
    case Recorded::WithMovieName:
        return index == 2 && equalIgnoringCase(call.words[0], "ExportFName") && !word.empty()
                   ? absoluteName(word)
                   : word;
    default:
        return word;
    }
}

} // namespace

std::string recordedLine(const MacroCommand& command, const MacroCall& call) {
    if (command.recorded == Recorded::ByOthers) {
        return {};
    }
    std::vector<std::string> words;
    for (std::size_t index = 0; index < call.words.size(); ++index) {
        words.push_back(MacroVariables::escaped(recordedWord(command, call, index)));
    }
    return macroLine(command.name, words);
}

} // namespace corvane::host
