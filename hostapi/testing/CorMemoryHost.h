/* A host in memory, to test add-ons with.
 *
 * It is the real host without pictures, windows and data files: its operations are those that an
 * add-on meets in the program, and what a user would see and do is asked and done by the functions
 * below. Link Corvane::memory-host (libcorvane-memory-host.so); in CMake, find_package(Corvane).
 *
 *     CorMemoryHost host = CorMemoryHostCreate(TRUE);
 *     CorMemoryHostLoadData(host);
 *     if (!CorMemoryHostLoadAddOn(host, "build/ViewTeller.so")) {
 *         puts(CorMemoryHostGetError(host));
 *     }
 *     CorMemoryHostChooseMenuOption(host, "Animate", "Tell the &View");
 *     puts(CorMemoryHostGetShown(host, CorMemoryShown_Notice, 1));
 *     CorMemoryHostDestroy(&host);
 *
 * Ownership: the caller owns the host and destroys it. Texts belong to the host; each is valid until
 * the next call with the same host. What is handed over is copied.
 *
 * Threads: all functions are called on the thread that made the host. The operations of hostapi/
 * work on it while it lives, on that thread alone.
 *
 * One process: an add-on cannot be unloaded, so it is loaded once in a process, and one process
 * tests it with one host. Hosts in which nothing was loaded may follow each other.
 *
 * Errors: functions that answer CorBool answer FALSE, those with a handle COR_HANDLE_NOT_CREATED,
 * those with a number 0 and those with a text "", when they cannot do it; then CorMemoryHostGetError
 * tells why in a sentence. A host that is NULL is such an error too, without a sentence. Nothing
 * throws, and what an add-on throws is caught as in the program.
 *
 * Positions and numbers count from 1. */
#ifndef HOSTAPI_TESTING_COR_MEMORY_HOST_H
#define HOSTAPI_TESTING_COR_MEMORY_HOST_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

typedef struct CorMemoryHost_s* CorMemoryHost;

/* Makes a host without frames and data, as it is when add-ons are loaded.
 *   hasWindows  FALSE for a run without windows, in which no dialogs and menu options can be made
 *   returns     NULL without memory */
CorMemoryHost CorMemoryHostCreate(CorBool hasWindows);

/* Frees the host, and sets *host to NULL. CorMemoryHostQuit goes before, where an add-on is loaded. */
void CorMemoryHostDestroy(CorMemoryHost* host);

/* The sentence about the last call that failed; "" when none has. */
const char* CorMemoryHostGetError(CorMemoryHost host);

/* --- Data. What is added waits for CorMemoryHostLoadData. --- */

/* Adds a block of cells.
 *   dimension  3 for cells of a volume, 2 for a surface, 1 for lines, 0 for points
 *   times      the solution times at which it exists; NULL for a block that does not change
 *   timeCount  of them; each time makes a zone, and so does a block without times */
CorBool CorMemoryHostAddBlock(CorMemoryHost host, const char* name, int dimension,
                              const double* times, long timeCount);

/* Adds a variable.
 *   components  1, or 3 for a vector
 *   least       of its values; of a vector, of their lengths
 *   greatest    the same */
CorBool CorMemoryHostAddVariable(CorMemoryHost host, const char* name, int components, double least,
                                 double greatest);

/* The corners of the box round all blocks: 0 0 0 and 1 1 1 unless set. Each has three numbers. */
CorBool CorMemoryHostSetExtent(CorMemoryHost host, const double* low, const double* high);

/* Loads what was added into the active frame, as opening data files does: a frame is made where
 * there is none, its plots and view are chosen, and listeners are told. Without anything added,
 * these are the volume "flow" at the times 0, 1 and 2, and the surface "body", with the variables
 * "pressure" and "velocity". */
CorBool CorMemoryHostLoadData(CorMemoryHost host);

/* Takes the data from the active frame, and tells the listeners. */
CorBool CorMemoryHostRemoveData(CorMemoryHost host);

/* --- Life --- */

/* Loads the library of an add-on, and calls its entry point. FALSE also when that let an exception
 * out. */
CorBool CorMemoryHostLoadAddOn(CorMemoryHost host, const char* library);

/* Calls an entry point that is linked into the test, guarded as when a library is loaded. */
CorBool CorMemoryHostCallEntryPoint(CorMemoryHost host, void (*entryPoint)(void));

/* Runs the work that waits in the idle queue, and draws what is due. Work that is queued meanwhile
 * waits for the next call. */
CorBool CorMemoryHostRunIdle(CorMemoryHost host);

/* Carries out lines of a macro: $!EXTCOMMAND "View Teller" "Tell". FALSE where one fails. */
CorBool CorMemoryHostRunMacro(CorMemoryHost host, const char* lines);

/* Begins to record a macro; what was recorded before is forgotten. */
CorBool CorMemoryHostStartRecording(CorMemoryHost host);

/* Lines that were recorded so far. */
long CorMemoryHostGetRecordedCount(CorMemoryHost host);
const char* CorMemoryHostGetRecorded(CorMemoryHost host, long number);

/* The program ends: listeners hear of StateChange_HostQuit, and dialogs are gone. */
CorBool CorMemoryHostQuit(CorMemoryHost host);

/* --- Menus, dialogs and controls, as a user reaches them. Texts are compared without '&', line
 *     breaks and padding: "Animate All". What a user cannot reach, since it is dimmed, hidden or
 *     behind a modal dialog, cannot be operated: FALSE. --- */

CorBool CorMemoryHostChooseMenuOption(CorMemoryHost host, const char* menu, const char* label);
CorBool CorMemoryHostIsMenuOptionSensitive(CorMemoryHost host, const char* menu, const char* label);

/* The handle of the dialog with this title. */
int CorMemoryHostFindDialog(CorMemoryHost host, const char* title);

typedef enum CorMemoryControl_e {
    CorMemoryControl_Button = 0,
    CorMemoryControl_Label = 1,
    CorMemoryControl_GroupBox = 2,
    CorMemoryControl_TextField = 3, /* spin fields too */
    CorMemoryControl_SpinField = 4,
    CorMemoryControl_Toggle = 5,
    CorMemoryControl_List = 6,
    CorMemoryControl_OptionMenu = 7,
    CorMemoryControl_RadioBox = 8,
    CorMemoryControl_MenuItem = 9,
    CorMemoryControl_MenuToggle = 10
} CorMemoryControl_e;

/* The handle of a control of a dialog.
 *   text  its label; for kinds without one, that of the label beside it; NULL for the only one of
 *         its kind */
int CorMemoryHostFindControl(CorMemoryHost host, int dialog, CorMemoryControl_e kind,
                             const char* text);

/* A button or an item of a menu. */
CorBool CorMemoryHostPress(CorMemoryHost host, int control);
/* A toggle, in a dialog or in a menu, to its other state. */
CorBool CorMemoryHostSwitch(CorMemoryHost host, int toggle);
/* Replaces the text of a field, and leaves the field, which commits it. */
CorBool CorMemoryHostType(CorMemoryHost host, int field, const char* text);
/* An arrow of a spin field. */
CorBool CorMemoryHostStep(CorMemoryHost host, int spinField, CorBool up);
/* Selects these rows of a list instead of others; none for a count of 0. */
CorBool CorMemoryHostSelect(CorMemoryHost host, int list, const long* positions, long count);
/* An item of an option menu or a radio box. */
CorBool CorMemoryHostChoose(CorMemoryHost host, int control, long position);

typedef enum CorMemoryDialogButton_e {
    CorMemoryDialogButton_Ok = 0, /* of modal dialogs */
    CorMemoryDialogButton_Apply = 1,
    CorMemoryDialogButton_Cancel = 2, /* of modal dialogs; closes the others, as Esc does */
    CorMemoryDialogButton_Help = 3
} CorMemoryDialogButton_e;

CorBool CorMemoryHostPressDialogButton(CorMemoryHost host, int dialog,
                                       CorMemoryDialogButton_e button);

/* Whether a dialog is shown. */
CorBool CorMemoryHostIsUp(CorMemoryHost host, int dialog);
/* FALSE for what is dimmed, or in something that is. */
CorBool CorMemoryHostIsSensitive(CorMemoryHost host, int control);
/* The text of a field, as it is shown; of all others the label as it was given. */
const char* CorMemoryHostGetText(CorMemoryHost host, int control);
/* A toggle, in a dialog or in a menu. */
CorBool CorMemoryHostIsOn(CorMemoryHost host, int toggle);
/* Rows of a list, items of an option menu or a radio box. */
long CorMemoryHostGetItemCount(CorMemoryHost host, int control);
const char* CorMemoryHostGetItem(CorMemoryHost host, int control, long position);
/* Whether a row of a list, or an item of the others, is the chosen one. */
CorBool CorMemoryHostIsChosen(CorMemoryHost host, int control, long position);

/* --- Questions of the add-on, and what it showed --- */

/* From now on, questions that hold this text are answered so; of several answers the last one
 * counts. Without any, questions are answered with No. */
CorBool CorMemoryHostAnswer(CorMemoryHost host, const char* partOfQuestion, CorBool yes);
/* The next file dialog gives this name; more of them queue up. Without one it is cancelled. */
CorBool CorMemoryHostAnswerFile(CorMemoryHost host, const char* fileName);

typedef enum CorMemoryShown_e {
    CorMemoryShown_Error = 0,
    CorMemoryShown_Notice = 1,
    CorMemoryShown_Question = 2,
    CorMemoryShown_FileToRead = 3,  /* the kind of file that was asked for */
    CorMemoryShown_FileToWrite = 4, /* the same */
    CorMemoryShown_Help = 5         /* the page */
} CorMemoryShown_e;

long CorMemoryHostGetShownCount(CorMemoryHost host, CorMemoryShown_e kind);
const char* CorMemoryHostGetShown(CorMemoryHost host, CorMemoryShown_e kind, long number);

/* --- The calls of the add-on --- */

/* Calls so far, in the order in which they returned, as in a trace without results:
 * CorUtilDrawGraphics(FALSE). Those about strings and argument lists are left out. */
long CorMemoryHostGetCallCount(CorMemoryHost host);
const char* CorMemoryHostGetCall(CorMemoryHost host, long number);
/* Forgets them. */
CorBool CorMemoryHostClearCalls(CorMemoryHost host);

/* The n-th call from now, of all operations that can fail, fails; those about strings and argument
 * lists count too. 0 for none. For sweeps: raise n until CorMemoryHostHasFailed answers FALSE. */
CorBool CorMemoryHostFailCall(CorMemoryHost host, long n);
CorBool CorMemoryHostHasFailed(CorMemoryHost host);
/* The next calls of this operation fail. */
CorBool CorMemoryHostFailNext(CorMemoryHost host, const char* operation, long times);
/* The user stops at the n-th check of progress from now. 0 for never. */
CorBool CorMemoryHostStopAtCheck(CorMemoryHost host, long n);

/* Rules that were broken so far, as in a trace: misuse, and exceptions that callbacks let out. And
 * what must not be left behind when nothing runs: locks, suspended drawing, an open percent-done
 * display, a movie that is being recorded. */
long CorMemoryHostGetBrokenCount(CorMemoryHost host);
const char* CorMemoryHostGetBroken(CorMemoryHost host, long number);
/* Strings, arrays, sets and argument lists that were not given back. */
long CorMemoryHostGetHeldCount(CorMemoryHost host);

/* Pictures drawn on the screen. */
long CorMemoryHostGetPictureCount(CorMemoryHost host);
/* Pictures in the movies that were started, and movies that were finished. */
long CorMemoryHostGetMovieFrameCount(CorMemoryHost host);
long CorMemoryHostGetFinishedMovieCount(CorMemoryHost host);

COR_END_DECLS

#endif
