# What the pages of docs/ say to readers of the repository, as the documentation has it.

# The pictures are made at build time, so the pages name them where readers of the Markdown do not stumble over them:
# <!-- picture sliders.png: The sliders in every state -->
# As HTML, since Doxygen's own picture has its words as a caption alone, and none for those who cannot see it.
s|^<!-- picture \([^ ]*\): \(.*\) -->$|<div class="image"><img src="\1" alt="\2"><div class="caption">\2</div></div>|

# The table of the sources, where there is a page of it.
s|(../ZelCmnCtrl03/UiGraphicsColors.h)|(../build/docs/generated/colours.md)|g
