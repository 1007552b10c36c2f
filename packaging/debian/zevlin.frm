All players of this machine share the files of this folder. As long as this
file is here, Zevlin copies them into a player's own folder and moves none.
