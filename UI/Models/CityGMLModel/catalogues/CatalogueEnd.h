// Takes back the words of Catalogue.h: the last include of a catalogue.

#undef ROWS
#undef ROWS_OF
#undef FIELDS
#undef CURRENT
#undef EXTENSION
#undef SHARED_GROUP
#undef NEW_GROUP
#undef ATTR
#undef ENUM
#undef ATTR_BY_NAME
#undef CLASS_FUNCTION_USAGE
#undef REFERENCE
#undef GROUP_EACH
#undef GROUP_EACH_HELD
#undef GROUP_ALL_HELD
#undef GENERIC_ROWS
#undef GENERIC
#undef GENERIC_ENUM
#undef GENERIC_EACH
#undef GENERIC_EACH_HELD
#undef GENERIC_ALL_HELD
#undef TOLVIK_HELD
