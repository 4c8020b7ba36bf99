// The bytes of the stored pictures, between two labels each; assets.cpp names them.

#define JOINED(First, Second) First##Second
#define SYMBOL(Prefix, Name) JOINED(Prefix, Name)

#define ASSET(Name, File)                             \
    .balign 8;                                        \
    .globl SYMBOL(__USER_LABEL_PREFIX__, Name);       \
    SYMBOL(__USER_LABEL_PREFIX__, Name): .incbin File; \
    .globl SYMBOL(__USER_LABEL_PREFIX__, Name##_end); \
    SYMBOL(__USER_LABEL_PREFIX__, Name##_end):

#if defined(__APPLE__)
    .section __TEXT,__const
#elif defined(_WIN32)
    .section .rdata,"dr"
#else
    .section .rodata
#endif

ASSET(gloamtide_natural_day, "natural_day.bmp")
ASSET(gloamtide_natural_night, "natural_night.bmp")
ASSET(gloamtide_political_day, "political_day.bmp")
ASSET(gloamtide_political_night, "political_night.bmp")
ASSET(gloamtide_natural_fine, "natural_fine.webp")
ASSET(gloamtide_political_fine, "political_fine.webp")
ASSET(gloamtide_sea_fine, "sea_fine.png")
ASSET(gloamtide_terrain_day, "terrain_day.webp")
ASSET(gloamtide_terrain_night, "terrain_night.webp")
ASSET(gloamtide_zone_mask, "zone_mask.bmp")
ASSET(gloamtide_splash, "splash.bmp")
ASSET(gloamtide_icon_bmp, "icon.bmp")
ASSET(gloamtide_icon_png, "icon.png")
ASSET(gloamtide_help, "help.html")

#if defined(__linux__)
    .section .note.GNU-stack,"",%progbits
#endif
