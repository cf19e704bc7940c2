// A precompiled header belongs to a target, and a target wants a source.
