html = """
       <b>
         "#{title}"
       </b>
       """
poem = '''
  one
    two
  three
'''
empty = """"""
