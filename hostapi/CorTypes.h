/* Basic types of the contract between add-on and host. */
#ifndef HOSTAPI_COR_TYPES_H
#define HOSTAPI_COR_TYPES_H

/* The operations are the only symbols that the host's library shows to add-ons. */
#if defined(__GNUC__)
#define COR_VISIBILITY_PUSH _Pragma("GCC visibility push(default)")
#define COR_VISIBILITY_POP _Pragma("GCC visibility pop")
#else
#define COR_VISIBILITY_PUSH
#define COR_VISIBILITY_POP
#endif

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

/* TRUE or FALSE. */
typedef int CorBool;

/* Identifies a registered add-on; opaque. */
typedef struct CorAddOn_s* CorAddOnID;

/* Named arguments of an operation; opaque. */
typedef struct CorArgList_s* CorArgList;

/* A set of positive integers; opaque. */
typedef struct CorSet_s* CorSet;

/* Carries any function pointer in an argument list. */
typedef void (*CorGenericFunc)();

COR_END_DECLS

/* A dialog or control that has not been created. */
#define COR_HANDLE_NOT_CREATED (-2)
/* The host's main window, as the parent of a dialog. */
#define COR_HANDLE_MAIN_WINDOW (-1)

#endif
