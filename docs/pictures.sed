# The pictures are made at build time, so the pages name them where readers of the Markdown do not stumble over them:
# <!-- picture sliders.png: The sliders in every state -->
s/^<!-- picture \([^ ]*\): \(.*\) -->$/![\2](\1)/
