/* Basic types of the contract between add-on and host, and the words its comments use. */
#ifndef HOSTAPI_COR_TYPES_H
#define HOSTAPI_COR_TYPES_H

/* Each operation and each callback ends its comment with a tag in square brackets. It says from
 * where the call may come, and joins with & and ! the states in which it does its work:
 *   main-thread      the one thread of the user interface; from another one a call does nothing,
 *                    returns its failure, and is noted in the trace
 *   entry            InitCorAddOn113 is running
 *   popping          from CorUtilFrameLightweightPopStart to CorUtilFrameLightweightPopEnd
 *   progress         from CorUtilStatusStartPercentDone to CorUtilStatusFinishPercentDone
 *   recording        a movie is being recorded: from a successful CorUtilExportStart to
 *                    CorUtilExportFinish or CorUtilExportCancel
 *   macro-recording  the host records a macro
 * An operation that is called in a wrong state changes nothing; its comment says what it returns.
 *
 * Strings are UTF-8 and end with NUL. Unless a comment says otherwise the receiver copies what it
 * is given before it returns, so an argument may be a temporary, and a string that is handed to a
 * callback is valid until the callback returns. Positions in lists, menus and sets count from 1,
 * and 0 means none. */

/* The library of the host hides its symbols by default; the operations are what it shows. */
#if defined(__GNUC__)
#define COR_VISIBILITY_PUSH _Pragma("GCC visibility push(default)")
#define COR_VISIBILITY_POP _Pragma("GCC visibility pop")
#else
#define COR_VISIBILITY_PUSH
#define COR_VISIBILITY_POP
#endif

/* Stand around the declarations of each header: C linkage, visible from outside the library. */
#ifdef __cplusplus
#define COR_BEGIN_DECLS                                                                            \
    extern "C" {                                                                                   \
    COR_VISIBILITY_PUSH
#define COR_END_DECLS                                                                              \
    COR_VISIBILITY_POP                                                                             \
    }
#else
#define COR_BEGIN_DECLS COR_VISIBILITY_PUSH
#define COR_END_DECLS COR_VISIBILITY_POP
#endif

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

COR_BEGIN_DECLS

/* TRUE or FALSE. As an argument, every value but 0 counts as TRUE. */
typedef int CorBool;

/* Identifies a registered add-on. Valid until the process ends; never freed. */
typedef struct CorAddOn_s* CorAddOnID;

/* Named, typed arguments of an operation. Made by CorUtilArgListAlloc, freed by
 * CorUtilArgListDealloc. */
typedef struct CorArgList_s* CorArgList;

/* A set of positive integers. Made by the host, freed by CorUtilSetDealloc. */
typedef struct CorSet_s* CorSet;

/* Carries a function pointer of any type in an argument list. Cast it back before calling. */
typedef void (*CorGenericFunc)();

COR_END_DECLS

/* The handle of a dialog or control that does not exist. */
#define COR_HANDLE_NOT_CREATED (-2)

/* The host's main window, as the parent of a dialog. */
#define COR_HANDLE_MAIN_WINDOW (-1)

#endif
