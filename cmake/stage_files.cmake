# Copies what is installed beside the program: layouts, sample cards and the readme.
# Called with -DCARD=<folder of the card data> -DREADME=<file> -DTARGET=<folder>
file(GLOB files ${CARD}/Definitions.Ini.* ${CARD}/*.zev)
file(REMOVE_RECURSE ${TARGET})
file(COPY ${files} DESTINATION ${TARGET})
file(COPY_FILE ${README} ${TARGET}/Readme.txt)
