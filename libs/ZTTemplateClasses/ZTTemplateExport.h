#ifndef ZTTEMPLATEEXPORT_H
#define ZTTEMPLATEEXPORT_H

// Class templates whose instances keep process-wide state in function-local statics (keyword
// tables, singletons) must have one instance of that state across all shared libraries and the
// program. The libraries are built with hidden visibility, so these templates opt back into
// default visibility; the dynamic linker then unifies their statics.
#if defined(__GNUC__) || defined(__clang__)
#define ZT_TEMPLATE_EXPORT __attribute__((visibility("default")))
#else
#define ZT_TEMPLATE_EXPORT
#endif

#endif // ZTTEMPLATEEXPORT_H
