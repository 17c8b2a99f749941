a = "日本語のテキスト"
b = 'emoji 👩‍👩‍👧 and   separator'
c = "\u{1F600}"
d = """
  全角　スペース
"""
